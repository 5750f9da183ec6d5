#pragma once

#include "program.h"

#include <quillon/app/cli/command_line.h>
#include <quillon/app/cli/output.h>

namespace quillon {

/// Is the program, until its user quits it; where it runs already, asks the running one to show itself.
/// `argc` and `argv` are those of main, for Qt.
ExitCode runProgram(Platform& platform, FirstShow firstShow, int& argc, char** argv, Output& output);

} // namespace quillon
