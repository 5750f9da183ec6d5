#pragma once

#include "app_facts.h"

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// An installed application, as its desktop entry describes it.
struct DesktopEntry {
    std::string id;             ///< without ".desktop"
    std::string name;           ///< in the user's language
    std::string startupWMClass; ///< "" when it has none
    std::string icon;           ///< a theme name or an absolute path; "" when it has none
    std::string executable;     ///< the program's file name, without its folder
    bool isShown = true;        ///< in menus of applications
    bool isTerminal = false;    ///< a terminal emulator: its children are not it

    bool operator==(const DesktopEntry&) const = default;
};

/// The installed applications, by whatever leads to one of them. Never changes, so any thread may read it.
class DesktopEntries {
  public:
    DesktopEntries() = default;
    /// Of two entries with one id the first counts.
    explicit DesktopEntries(std::vector<DesktopEntry> entries);

    /// Reads the system's and the user's entries, at most 10,000. Reads the disk: not for the main thread.
    static DesktopEntries installed();

    /// nullptr for an unknown id.
    const DesktopEntry* byID(std::string_view id) const;
    const std::vector<DesktopEntry>& all() const { return m_entries; }

    /// Which application a window belongs to. In this order, each compared with what is installed: WM_CLASS
    /// with StartupWMClass, then with the ids; the GTK application id; a Flatpak's and a Snap's own names;
    /// the control group, unless it is a terminal's; the executable. An entry that is hidden from menus and
    /// starts another program than the one that runs (an importer that comes with a viewer and claims its
    /// windows) loses to one that starts it. An application that is not installed goes by its Flatpak or GTK
    /// application id, else by the program's name.
    AppIdentity identify(const WindowFacts& window, const ProcessFacts& process) const;

    /// Which application a window belongs to that was identified as `own` and belongs to windows of the same
    /// process that were identified as `owners`, the nearest first: its own when that is installed, else the
    /// nearest owner's that is. Dialogs often bear their program's name alone.
    AppIdentity identifyOwned(const AppIdentity& own, std::span<const AppIdentity> owners) const;

  private:
    using Index = std::multimap<std::string, std::size_t, std::less<>>;

    const DesktopEntry* best(const Index& index, std::string_view key, const ProcessFacts& process) const;
    const DesktopEntry* byWindow(const WindowFacts& window, const ProcessFacts& process) const;
    const DesktopEntry* find(const WindowFacts& window, const ProcessFacts& process) const;
    const DesktopEntry* byClass(const WindowFacts& window, const ProcessFacts& process) const;
    const DesktopEntry* byNameOfID(std::string_view name, const ProcessFacts& process) const;
    const DesktopEntry* byProcess(const ProcessFacts& process) const;

    std::vector<DesktopEntry> m_entries;
    Index m_byID;
    Index m_byFoldedID;
    Index m_byLastPart;
    Index m_byClass;
    Index m_byFoldedClass;
    Index m_byExecutable;
};

} // namespace quillon
