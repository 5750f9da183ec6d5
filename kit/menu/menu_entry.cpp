#include "menu_entry.h"

#include <quillon/kit/base/hash.h>
#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <array>
#include <span>

namespace quillon {

namespace {

std::string joined(std::span<const std::string> parts, std::string_view separator) {
    std::size_t length = 0;
    for (const std::string& part : parts)
        length += part.size() + separator.size();
    std::string result;
    result.reserve(length);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            result += separator;
        result += parts[i];
    }
    return result;
}

} // namespace

std::string MenuEntry::id() const {
    return joined(path, pathSeparator);
}

bool MenuEntry::hasId(std::string_view id) const {
    for (std::size_t i = 0; i < path.size(); ++i) {
        const std::string_view before = i > 0 ? pathSeparator : std::string_view();
        if (!id.starts_with(before) || !id.substr(before.size()).starts_with(path[i]))
            return false;
        id.remove_prefix(before.size() + path[i].size());
    }
    return id.empty();
}

std::string_view MenuEntry::menu() const {
    return path.empty() ? std::string_view() : path.front();
}

std::string_view MenuEntry::title() const {
    return path.empty() ? std::string_view() : path.back();
}

std::string MenuEntry::submenuPath() const {
    if (path.size() < 3)
        return {};
    return joined(std::span(path).subspan(1, path.size() - 2), pathSeparator);
}

std::string MenuEntry::searchText() const {
    return joined(path, " ").append(" ").append(searchTerms(shortcut));
}

bool MenuEntry::isSystemReserved() const {
    return quillon::isSystemReserved(shortcut);
}

bool isSystemReserved(const Shortcut& shortcut) {
    static constexpr std::array<std::string_view, 11> reserved{
        "⌃⌘Q", "⌘⇥", "⇧⌘⇥", "⌘Space", "⌃⌘Space", "⌥⌘Space", "⇧⌘3", "⇧⌘4", "⇧⌘5", "⌥⌘⎋", "⌥⌘D",
    };
    return std::ranges::find(reserved, shortcut.display()) != reserved.end();
}

std::string searchTerms(const Shortcut& shortcut) {
    std::string terms = unicode::toLower(shortcut.display());
    terms.append(" ").append(unicode::toLower(shortcut.spoken()));
    if (shortcut.modifiers.contains(Modifiers::command))
        terms += " cmd";
    if (shortcut.modifiers.contains(Modifiers::option))
        terms += " opt alt";
    if (shortcut.modifiers.contains(Modifiers::control))
        terms += " ctrl";
    return terms;
}

} // namespace quillon

std::size_t std::hash<quillon::MenuEntry>::operator()(const quillon::MenuEntry& entry) const noexcept {
    return quillon::hashOf(entry.path, entry.shortcut, entry.enabled);
}
