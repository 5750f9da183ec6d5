#include "commands.h"

#include <quillon/app/platform/linux/session/instance.h>

#include <iostream>

namespace quillon {

ExitCode runQuit(const QuitCommand&) {
    if (askRunningInstance(QStringLiteral("Quit")))
        return ExitCode::success;
    std::cerr << "quillon: no running instance answers\n";
    return ExitCode::failure;
}

} // namespace quillon
