#pragma once

namespace quillon {

/// What may be asked of the program that runs in this session.
enum class ProgramRequest {
    activate, ///< bring up its menu or a window
    showOverlay,
    showSample,
    quit,
};

/// The one program of this kind that runs in the session, seen from another process.
class RunningProgram {
  public:
    enum class Answer {
        done,
        notRunning,
        silent,      ///< it runs and did not answer within a few seconds
        unreachable, ///< there is no way to ask, so nobody knows whether it runs
    };

    virtual ~RunningProgram() = default;

    /// Asks for it and waits for the answer within bounds.
    virtual Answer ask(ProgramRequest request) = 0;
};

} // namespace quillon
