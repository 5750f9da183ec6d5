#include "item_facts.h"

#include <quillon/kit/menu/menu_parser.h>

#include <ranges>
#include <utility>
#include <vector>

namespace quillon::atspi {
namespace {

/// The only entry of a menu bar that holds nothing else; absent when it is none.
std::optional<MenuEntry> onlyEntry(std::span<const std::string> menus, RawMenuItem item) {
    for (const std::string& title : menus | std::views::reverse) {
        RawMenuItem menu;
        menu.title = title;
        menu.children.push_back(std::move(item));
        item = std::move(menu);
    }
    auto entries = MenuParser::entries({&item, 1}, MenuParser::defaultMaxDepth);
    return entries.empty() ? std::nullopt : std::optional(std::move(entries.front()));
}

} // namespace

MenuItemFacts factsOf(std::span<const std::string> menus, const RawMenuItem& item) {
    MenuItemFacts facts;
    facts.enabled = item.enabled;
    if (auto entry = onlyEntry(menus, item)) {
        facts.path = std::move(entry->path);
        facts.shortcut = std::move(entry->shortcut);
        return facts;
    }
    // Only what has a shortcut is an entry; any will do to learn the path.
    RawMenuItem withShortcut = item;
    withShortcut.cmdChar = "A";
    withShortcut.cmdModifiers = 0;
    if (auto entry = onlyEntry(menus, std::move(withShortcut)))
        facts.path = std::move(entry->path);
    return facts;
}

} // namespace quillon::atspi
