#pragma once

#include <quillon/kit/shortcut/shortcut.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Stands between the titles of a path: a space, U+203A, a space.
inline constexpr std::string_view pathSeparator = " \u203a ";

/// A menu command that has a shortcut.
struct MenuEntry {
    std::vector<std::string> path; ///< menu titles, top-level menu first, the item's own title last
    Shortcut shortcut;
    bool enabled = true; ///< when the menus were read

    /// `path` joined with `pathSeparator`: the key of everything kept per command. Not the shortcut, so a
    /// changed key equivalent keeps the command's records.
    std::string id() const;
    /// Whether `id` is this entry's, without building it.
    bool hasId(std::string_view id) const;
    /// The top-level menu; "" for an empty path.
    std::string_view menu() const;
    /// The item's own title; "" for an empty path.
    std::string_view title() const;
    /// What lies strictly between menu and title, joined with `pathSeparator`; "" when nothing does.
    std::string submenuPath() const;
    /// Where free-text search looks: the path joined with blanks, a blank, the shortcut's search terms.
    std::string searchText() const;
    /// Whether the operating system takes this shortcut before the application sees it.
    bool isSystemReserved() const;

    bool operator==(const MenuEntry&) const = default;
};

/// Whether `shortcut` is one of the eleven that belong to the system (lock screen, application switching,
/// input sources and search, screenshots, force quit, Dock hiding).
bool isSystemReserved(const Shortcut& shortcut);

/// The words under which search finds a shortcut: "⇧⌘s shift command s cmd".
std::string searchTerms(const Shortcut& shortcut);

} // namespace quillon

template <>
struct std::hash<quillon::MenuEntry> {
    std::size_t operator()(const quillon::MenuEntry& entry) const noexcept;
};
