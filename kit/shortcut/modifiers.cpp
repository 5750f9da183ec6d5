#include "modifiers.h"

#include <array>
#include <string_view>

namespace quillon {

namespace {

struct Member {
    Modifiers modifier;
    std::string_view glyph;
    std::string_view word;
};

/// In the order in which they are shown and read.
constexpr std::array<Member, 4> members{{
    {Modifiers::control, "⌃", "Control"},
    {Modifiers::option, "⌥", "Option"},
    {Modifiers::shift, "⇧", "Shift"},
    {Modifiers::command, "⌘", "Command"},
}};

} // namespace

std::string Modifiers::glyphs() const {
    std::string result;
    for (const Member& member : members) {
        if (contains(member.modifier))
            result += member.glyph;
    }
    return result;
}

std::vector<std::string> Modifiers::words() const {
    std::vector<std::string> result;
    for (const Member& member : members) {
        if (contains(member.modifier))
            result.emplace_back(member.word);
    }
    return result;
}

} // namespace quillon
