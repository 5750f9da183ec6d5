#include <quillon/fuzz/support/byte_reader.h>
#include <quillon/fuzz/support/law.h>

#include <quillon/app/platform/linux/atspi/key_binding/key_binding.h>
#include <quillon/kit/base/unicode.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {
namespace {

using atspi::keyEquivalent;
using atspi::ToolkitFamily;

constexpr std::array families{ToolkitFamily::gtk, ToolkitFamily::qt, ToolkitFamily::other};

/// There is no key equivalent at all, or one that stands for exactly one key.
void checkEquivalent(const AxKeyEquivalent& equivalent) {
    const auto shortcut = Shortcut::fromAX(equivalent);
    if (equivalent == AxKeyEquivalent{}) {
        QUILLON_LAW(!shortcut);
        return;
    }
    QUILLON_LAW(shortcut.has_value());
    QUILLON_LAW(equivalent.modifiers && *equivalent.modifiers >= 0 && *equivalent.modifiers <= 15);
    QUILLON_LAW(shortcut->modifiers == Modifiers::fromAXMask(*equivalent.modifiers));
    QUILLON_LAW(equivalent.character.has_value() != equivalent.glyph.has_value());
    QUILLON_LAW(!equivalent.virtualKey);
    QUILLON_LAW(!equivalent.character || unicode::onlyScalar(*equivalent.character));
    QUILLON_LAW(!shortcut->key.glyph().empty() && unicode::isValid(shortcut->key.glyph()));
    QUILLON_LAW(shortcut->key.asSpecial() || !unicode::isWhitespace(shortcut->key.glyph()));
}

void checkFamily(ToolkitFamily family, const std::string& text, const std::string& title) {
    const AxKeyEquivalent equivalent = keyEquivalent({text, family, title});
    checkEquivalent(equivalent);
    if (family == ToolkitFamily::qt) {
        const AxKeyEquivalent untitled = keyEquivalent({text, family, ""});
        QUILLON_LAW(
            equivalent == untitled || equivalent == AxKeyEquivalent{}); // a title takes mnemonics away
    } else {
        QUILLON_LAW(equivalent == keyEquivalent({text, family, "another"}));
        QUILLON_LAW(text.find(';') != std::string::npos || equivalent == AxKeyEquivalent{});
    }
}

} // namespace
} // namespace quillon

/// One byte for the toolkit, a title after its length, and the binding's text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillon::ByteReader reader(data, size);
    const auto family = quillon::families.at(reader.byte() % quillon::families.size());
    const std::string title = reader.text();
    std::string text;
    while (!reader.isAtEnd())
        text.push_back(static_cast<char>(reader.byte()));
    quillon::checkFamily(family, text, title);
    return 0;
}
