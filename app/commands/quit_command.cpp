#include "commands.h"

namespace quillon {

ExitCode runQuit(RunningProgram& program, Output& output) {
    switch (program.ask(ProgramRequest::quit)) {
    case RunningProgram::Answer::done: return ExitCode::success;
    case RunningProgram::Answer::notRunning:
        return output.fail(ExitCode::failure, "there is no running instance");
    case RunningProgram::Answer::refused:
    case RunningProgram::Answer::silent:
        return output.fail(ExitCode::failure, "the running instance does not answer");
    case RunningProgram::Answer::unreachable: break;
    }
    return output.fail(ExitCode::failure, "the session cannot be reached; see quillon doctor");
}

} // namespace quillon
