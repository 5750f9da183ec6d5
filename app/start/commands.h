#pragma once

#include <quillon/app/cli/command_line.h>

namespace quillon {

/// Each carries out one command of the command line: results to standard output, messages to standard error.
ExitCode runApps(const AppsCommand& command);
ExitCode runSheet(const SheetCommand& command);
ExitCode runDoctor(const DoctorCommand& command);
ExitCode runQuit(const QuitCommand& command);

/// What the program shows when it starts.
enum class FirstShow { nothing, overlay, sample };

/// Is the program, until its user quits it; where it runs already, asks the running one to show itself.
int runProgram(int argc, char** argv, FirstShow firstShow);

} // namespace quillon
