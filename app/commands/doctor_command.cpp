#include "commands.h"

#include <quillon/app/cli/checkup.h>

namespace quillon {

ExitCode runDoctor(Diagnosis& diagnosis, Output& output) {
    const std::vector<Check> checks = diagnosis.checks();
    output.print(checkupText(checks));
    return allWell(checks) ? ExitCode::success : ExitCode::failure;
}

} // namespace quillon
