#pragma once

#include "session_kind.h"

#include <quillon/app/ports/session_start.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Starting with the session by an entry in the user's autostart folder, as the desktops agreed on it. Not
/// offered in a sandbox, whose paths mean nothing outside of it.
class XdgSessionStart final : public SessionStart {
  public:
    struct Places {
        std::filesystem::path executable;    ///< this program
        std::filesystem::path sandboxNotice; ///< a file that only sandboxed programs see
    };
    /// Of this process.
    static Places ownPlaces();

    explicit XdgSessionStart(
        Places places = ownPlaces(), const Environment& environment = processEnvironment);

    bool isOffered() const override { return m_isOffered; }
    bool isOn() const override;
    bool setOn(bool on) override;

  private:
    std::optional<std::string> systemEntry() const;
    bool turnOn() const;
    bool turnOff() const;

    bool m_isOffered;
    std::string m_ownEntry;                           ///< what this program writes
    std::filesystem::path m_file;                     ///< the user's entry
    std::vector<std::filesystem::path> m_systemFiles; ///< the computer's, the first that exists counts
};

} // namespace quillon
