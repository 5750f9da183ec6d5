#include "commands.h"

#include <QCoreApplication>

namespace quillon {

ExitCode runQuit(RunningProgram& program, Output& output) {
    switch (program.ask(ProgramRequest::quit)) {
    case RunningProgram::Answer::done: return ExitCode::success;
    case RunningProgram::Answer::notRunning:
        return output.fail(
            ExitCode::failure, TerminalText::sentence(QCoreApplication::translate(
                                   "CommandLine", "there is no running instance")));
    case RunningProgram::Answer::refused:
    case RunningProgram::Answer::silent:
        return output.fail(
            ExitCode::failure, TerminalText::sentence(QCoreApplication::translate(
                                   "CommandLine", "the running instance does not answer")));
    case RunningProgram::Answer::unreachable: break;
    }
    return output.fail(
        ExitCode::failure, TerminalText::sentence(QCoreApplication::translate(
                               "CommandLine", "the session cannot be reached; see quillon doctor")));
}

} // namespace quillon
