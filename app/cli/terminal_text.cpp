#include "terminal_text.h"

#include "terminal_width.h"

#include <quillon/kit/base/unicode.h>

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <cstdio>

namespace quillon {

namespace {

/// Embeddings, overrides and isolates, and what ends them. The marks of direction are left as they are: they
/// do no more than any letter of such a script.
bool reorders(UChar32 scalar) {
    switch (u_charDirection(scalar)) {
    case U_LEFT_TO_RIGHT_EMBEDDING:
    case U_LEFT_TO_RIGHT_OVERRIDE:
    case U_RIGHT_TO_LEFT_EMBEDDING:
    case U_RIGHT_TO_LEFT_OVERRIDE:
    case U_POP_DIRECTIONAL_FORMAT:
    case U_FIRST_STRONG_ISOLATE:
    case U_LEFT_TO_RIGHT_ISOLATE:
    case U_RIGHT_TO_LEFT_ISOLATE:
    case U_POP_DIRECTIONAL_ISOLATE: return true;
    default: return false;
    }
}

/// Whether a terminal would do something with it other than show it.
bool isObeyed(UChar32 scalar) {
    switch (u_charType(scalar)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR: return true;
    default: return reorders(scalar);
    }
}

void appendWrittenOut(std::string& text, UChar32 scalar) {
    char name[16];
    std::snprintf(name, sizeof name, "<U+%04X>", static_cast<unsigned>(scalar));
    text += name;
}

enum class LineBreaks { writtenOut, kept };

std::string shown(std::string_view foreign, LineBreaks lineBreaks) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(foreign.data());
    const auto length = static_cast<std::int64_t>(foreign.size());
    std::string text;
    for (std::int64_t position = 0; position < length;) {
        UChar32 scalar = 0;
        U8_NEXT_OR_FFFD(bytes, position, length, scalar);
        const bool isKept = scalar == '\n' && lineBreaks == LineBreaks::kept;
        if (isObeyed(scalar) && !isKept)
            appendWrittenOut(text, scalar);
        else
            unicode::append(text, static_cast<char32_t>(scalar));
    }
    return text;
}

} // namespace

TerminalText TerminalText::of(std::string_view foreign) {
    TerminalText text;
    text.m_text = shown(foreign, LineBreaks::writtenOut);
    return text;
}

TerminalText TerminalText::linesOf(std::string_view foreign) {
    TerminalText text;
    text.m_text = shown(foreign, LineBreaks::kept);
    return text;
}

TerminalText TerminalText::blanks(std::size_t count) {
    TerminalText text;
    text.m_text.assign(count, ' ');
    return text;
}

std::size_t TerminalText::width() const {
    return terminalWidth(m_text);
}

} // namespace quillon
