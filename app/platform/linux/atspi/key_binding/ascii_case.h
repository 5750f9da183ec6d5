#pragma once

#include <string>
#include <string_view>

namespace quillon::atspi {

/// With small ASCII letters in place of capital ones, whatever the locale. Other bytes stay.
inline std::string asciiLowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

} // namespace quillon::atspi
