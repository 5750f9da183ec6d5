#include "commands.h"

#include "data_files.h"

#include <quillon/app/cli/checkup.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace quillon {

ExitCode runDoctor(Diagnosis& diagnosis, const std::filesystem::path& dataFolder, Output& output) {
    std::vector<Check> checks = diagnosis.checks();
    std::ranges::move(checkDataFiles(dataFolder), std::back_inserter(checks));
    output.print(checkupText(checks));
    return allWell(checks) ? ExitCode::success : ExitCode::failure;
}

} // namespace quillon
