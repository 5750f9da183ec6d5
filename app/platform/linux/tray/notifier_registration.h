#pragma once

#include <cstdint>

namespace quillon {

/// Where the registration of a tray item at the session's watcher (`org.kde.StatusNotifierWatcher`) stands:
/// a value that is told what the bus says, and tells what is to be asked next.
class NotifierRegistration {
  public:
    struct Steps {
        bool registerItem = false; ///< then `registered`
        bool askForHost = false;   ///< whether the watcher has one that shows items; then `hostAnswered`

        bool operator==(const Steps&) const = default;
    };

    /// At the start, when nobody knows yet whether there is a watcher, and whenever one came.
    Steps watcherCame();
    void watcherLeft();
    /// A host came to the watcher or left it.
    Steps hostsChanged();
    /// The watcher let go of the item.
    void itemDropped() { m_isRegistered = false; }

    /// Answers count only in the round in which they were asked for: each watcher begins a new one.
    std::uint64_t round() const { return m_round; }
    void registered(std::uint64_t round, bool isDone);
    Steps hostAnswered(std::uint64_t round, bool hasHost);

    /// A watcher with a host has the item.
    bool isShown() const { return m_isRegistered && m_hasHost; }
    /// Both questions to this watcher, or to nobody, are answered.
    bool isSettled() const { return !m_isRegistering && !m_isAsking; }

  private:
    Steps begin(Steps steps);

    std::uint64_t m_round = 0;
    bool m_isRegistering = false;
    bool m_isRegistered = false;
    bool m_isAsking = false;
    bool m_hasToAskAgain = false; ///< something happened since the question
    bool m_hasHost = false;
};

} // namespace quillon
