#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace quillon {

/// The characters that are printed on a key; "" where there is none.
struct KeyPrint {
    std::string plain;
    std::string shifted;

    bool operator==(const KeyPrint&) const = default;
};

/// The two ways in which keyboards of PCs are made: with a wide Return and a wide left ⇧, or with a tall
/// Return and another key beside a short ⇧.
enum class KeyboardShape { ansi, iso };

/// A keyboard as one sees it.
struct PrintedKeys {
    KeyboardShape shape = KeyboardShape::ansi;
    /// Of the keys that have characters, by the key code (`KeyCodes`) of their place.
    std::map<std::int64_t, KeyPrint> keys = {};

    bool operator==(const PrintedKeys&) const = default;
};

} // namespace quillon
