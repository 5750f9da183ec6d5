#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/shortcut/key_names.h>

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The printable, copyable list of one application's shortcuts.
namespace quillon::CheatSheet {

/// The name that opens a group.
struct Heading {
    std::string text;
    bool continued = false; ///< the group goes on from the column before
    bool operator==(const Heading&) const = default;
};

/// One command.
struct Item {
    std::string title;
    std::string shortcut; ///< as it is shown
    bool pinned = false;
    bool operator==(const Item&) const = default;
};

/// The user's note on the item just above.
struct Note {
    std::string text;
    bool operator==(const Note&) const = default;
};

using Line = std::variant<Heading, Item, Note>;

/// A heading (not continued) and the items and notes below it.
using Group = std::vector<Line>;
/// What stands below each other on a page.
using Column = std::vector<Line>;
/// Side by side, from the left.
using Page = std::vector<Column>;

/// The heading of the group of pinned commands.
inline constexpr std::string_view pinnedHeading = "Pinned";

/// Whether `lines` writes the notes.
enum class IncludeNotes { no, yes };

/// The sheet as groups: the pinned commands first, if there are any, then every menu with all of its
/// commands, pinned and disabled ones included, in menu order. Shortcuts are shown with `names`; with null,
/// by symbols.
std::vector<Group> lines(
    const AppSheet& sheet, const Annotations& annotations, IncludeNotes includeNotes,
    const KeyNames* names = nullptr);

/// How much fits on a page.
struct PageSize {
    int linesPerColumn = 30; ///< at least 4
    int columns = 3;         ///< at least 1
};

/// The groups cut into columns and those into pages; no line is lost or repeated but for headings, which open
/// a column again (`continued`) when their group goes on. An item and its notes stay together, and a heading
/// stays with its first item. Only an item with more notes than a column holds runs over the column's end,
/// and may leave its heading alone in the column before. Groups that do not open with a heading are left out.
/// A smaller size than the least is a program error.
std::vector<Page> paginate(std::span<const Group> groups, PageSize size);

/// The whole sheet with its notes as Markdown; only the title for a sheet without entries. Shortcuts as in
/// `lines`.
std::string markdown(const AppSheet& sheet, const Annotations& annotations, const KeyNames* names = nullptr);

} // namespace quillon::CheatSheet

template <>
struct std::hash<quillon::CheatSheet::Heading> {
    std::size_t operator()(const quillon::CheatSheet::Heading& heading) const noexcept;
};
template <>
struct std::hash<quillon::CheatSheet::Item> {
    std::size_t operator()(const quillon::CheatSheet::Item& item) const noexcept;
};
template <>
struct std::hash<quillon::CheatSheet::Note> {
    std::size_t operator()(const quillon::CheatSheet::Note& note) const noexcept;
};
