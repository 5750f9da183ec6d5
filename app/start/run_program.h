#pragma once

#include "program.h"

#include <quillon/app/cli/command_line.h>
#include <quillon/app/cli/output.h>

namespace quillon {

/// Is the program, until its user quits it; where it runs already, hands it the wish.
/// `argc` and `argv` are those of main, for Qt.
ExitCode runProgram(Platform& platform, const ProgramWish& wish, int& argc, char** argv, Output& output);

} // namespace quillon
