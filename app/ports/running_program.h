#pragma once

#include "windows.h"

#include <optional>
#include <string>

namespace quillon {

/// What may be asked of the program that runs in this session, and what it is started for.
enum class ProgramRequest {
    activate, ///< bring up its menu or a window; at its start: only what the user has to see
    serve,    ///< be there for what is asked next
    showOverlay,
    showSample,
    openWelcome,
    openLibrary,
    openPractice,
    openSettings,
    quit,
};

constexpr ProgramRequest openingOf(WindowName name) {
    switch (name) {
    case WindowName::welcome: return ProgramRequest::openWelcome;
    case WindowName::library: return ProgramRequest::openLibrary;
    case WindowName::practice: return ProgramRequest::openPractice;
    case WindowName::settings: return ProgramRequest::openSettings;
    }
    return ProgramRequest::activate;
}

/// The window that is asked for; absent when none is.
constexpr std::optional<WindowName> windowOf(ProgramRequest request) {
    for (const WindowName name : allWindowNames)
        if (openingOf(name) == request)
            return name;
    return std::nullopt;
}

/// The one program of this kind that runs in the session, seen from another process.
class RunningProgram {
  public:
    enum class Answer {
        done,
        notRunning,
        refused,     ///< it runs and has no such window
        silent,      ///< it runs and did not answer within a few seconds
        unreachable, ///< there is no way to ask, so nobody knows whether it runs
    };

    virtual ~RunningProgram() = default;

    /// Asks for it and waits for the answer within bounds.
    virtual Answer ask(ProgramRequest request) = 0;
    /// Asks for the practice window with this application, by its bundle identifier, and waits likewise.
    virtual Answer askForPractice(const std::string& bundleID) = 0;
};

} // namespace quillon
