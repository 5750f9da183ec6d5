#include "keyboard_plan.h"

#include "lit_keys.h"

#include <quillon/kit/shortcut/key_code.h>

#include <span>
#include <string_view>

namespace quillon {

namespace {

using Code = std::optional<std::int64_t>;
namespace Codes = ModifierKeyCodes;

constexpr double functionRow = 0;
constexpr double firstRow = 1.25; // the others follow one by one
constexpr double navigation = 15.25;
constexpr Code noCode = std::nullopt;

Code of(SpecialKey key) {
    return KeyCodes::of(key);
}

/// Puts keys side by side.
class Row {
  public:
    Row(std::vector<PlannedKey>& keys, double left, double top) : m_keys(keys), m_left(left), m_top(top) {}

    Row& key(Code code, double width = 1) {
        m_keys.push_back({QRectF(m_left, m_top, width, 1), code});
        m_left += width;
        return *this;
    }
    /// Those that have these characters on an ANSI keyboard.
    Row& characters(std::string_view characters) {
        for (std::size_t i = 0; i < characters.size(); ++i)
            key(KeyCodes::ofCharacter(characters.substr(i, 1)));
        return *this;
    }
    Row& specials(std::initializer_list<SpecialKey> specials) {
        for (const SpecialKey special : specials)
            key(of(special));
        return *this;
    }
    Row& gap(double width) {
        m_left += width;
        return *this;
    }

  private:
    std::vector<PlannedKey>& m_keys;
    double m_left;
    double m_top;
};

void addFunctionKeys(std::vector<PlannedKey>& keys) {
    using enum SpecialKey;
    Row(keys, 0, functionRow)
        .specials({escape})
        .gap(1)
        .specials({f1, f2, f3, f4})
        .gap(0.5)
        .specials({f5, f6, f7, f8})
        .gap(0.5)
        .specials({f9, f10, f11, f12});
    Row(keys, navigation, functionRow).key(noCode).key(noCode).key(noCode);
}

void addNavigationKeys(std::vector<PlannedKey>& keys) {
    using enum SpecialKey;
    Row(keys, navigation, firstRow).key(noCode).specials({home, pageUp});
    Row(keys, navigation, firstRow + 1).specials({forwardDelete, end, pageDown});
    Row(keys, navigation + 1, firstRow + 3).specials({up});
    Row(keys, navigation, firstRow + 4).specials({left, down, right});
}

/// Where the two shapes differ.
void addReturnAndShift(std::vector<PlannedKey>& keys, KeyboardShape shape) {
    Row tab(keys, 0, firstRow + 1);
    tab.key(of(SpecialKey::tab), 1.5).characters("QWERTYUIOP[]");
    Row caps(keys, 0, firstRow + 2);
    caps.key(Codes::capsLock, 1.75).characters("ASDFGHJKL;'");
    Row shift(keys, 0, firstRow + 3);
    if (shape == KeyboardShape::ansi) {
        tab.key(KeyCodes::ofCharacter("\\"), 1.5);
        caps.key(of(SpecialKey::returnKey), 2.25);
        shift.key(Codes::shift, 2.25);
    } else {
        caps.characters("\\");
        keys.push_back(
            {QRectF(13.5, firstRow + 1, 1.5, 1), of(SpecialKey::returnKey),
             QRectF(13.75, firstRow + 1, 1.25, 2)});
        shift.key(Codes::shift, 1.25).key(KeyCodes::isoSection);
    }
    shift.characters("ZXCVBNM,./").key(Codes::rightShift, 2.75);
}

} // namespace

std::vector<PlannedKey> keyboardPlan(KeyboardShape shape) {
    std::vector<PlannedKey> keys;
    addFunctionKeys(keys);
    addNavigationKeys(keys);
    Row(keys, 0, firstRow).characters("`1234567890-=").key(of(SpecialKey::delete_), 2);
    addReturnAndShift(keys, shape);
    Row(keys, 0, firstRow + 4)
        .key(Codes::control, 1.25)
        .key(Codes::command, 1.25)
        .key(Codes::option, 1.25)
        .key(of(SpecialKey::space), 6.25)
        .key(Codes::rightOption, 1.25)
        .key(Codes::rightCommand, 1.25)
        .key(noCode, 1.25)
        .key(Codes::rightControl, 1.25);
    return keys;
}

} // namespace quillon
