#include "key_name.h"

#include <array>
#include <string>

namespace quillon {

namespace {

struct Name {
    std::string_view name;
    Modifiers modifier;
};

constexpr std::array names{
    Name{"super", Modifiers::command}, Name{"meta", Modifiers::command},    Name{"mod4", Modifiers::command},
    Name{"alt", Modifiers::option},    Name{"control", Modifiers::control}, Name{"ctrl", Modifiers::control},
};

std::string folded(std::string_view text) {
    std::string lower;
    for (const char character : text)
        if (character != ' ' && character != '<' && character != '>')
            lower +=
                character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    return lower;
}

} // namespace

Modifiers modifierAlone(std::string_view shortcut) {
    std::string key = folded(shortcut.substr(0, shortcut.find("::")));
    if (key.ends_with("_l") || key.ends_with("_r"))
        key.resize(key.size() - 2);
    for (const Name& name : names)
        if (key == name.name)
            return name.modifier;
    return {};
}

} // namespace quillon
