#include "unicode.h"

#include "program_error.h"
#include "utf8.h"

#include <unicode/localpointer.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>

#include <algorithm>

namespace quillon::unicode {

namespace {

/// The first scalar of a text that is not empty; U+FFFD for a broken sequence. Moves `position` behind it.
char32_t scalarAt(std::string_view text, std::size_t& position) {
    const std::int32_t scalar = utf8::next(text, position);
    return scalar < 0 ? utf8::replacement : static_cast<char32_t>(scalar);
}

/// ICU's finder of character ends, one per thread because it remembers its text.
UBreakIterator* characterBreaks() {
    thread_local const icu::LocalUBreakIteratorPointer iterator = [] {
        UErrorCode status = U_ZERO_ERROR;
        icu::LocalUBreakIteratorPointer made(ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
        if (U_FAILURE(status))
            programError("the Unicode library must come with its data");
        return made;
    }();
    return iterator.getAlias();
}

/// The length in bytes of the first extended grapheme cluster of `text`.
std::size_t firstClusterLength(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    UBreakIterator* const breaks = characterBreaks();
    ubrk_setUText(breaks, &source, &status);
    ubrk_first(breaks);
    const std::int32_t end = ubrk_next(breaks);
    utext_close(&source);
    return static_cast<std::size_t>(std::max(end, 0));
}

} // namespace

bool isOneCharacter(std::string_view text) {
    if (text.empty())
        return false;
    if (onlyScalar(text))
        return true;
    const bool ascii = std::ranges::all_of(text, utf8::isAscii);
    return ascii ? text == "\r\n" : firstClusterLength(text) == text.size();
}

std::optional<char32_t> onlyScalar(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    std::size_t position = 0;
    const char32_t scalar = scalarAt(text, position);
    return position == text.size() ? std::optional(scalar) : std::nullopt;
}

std::optional<char32_t> firstScalar(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    std::size_t position = 0;
    return scalarAt(text, position);
}

std::size_t firstScalarLength(std::string_view text) {
    std::size_t position = 0;
    if (!text.empty())
        utf8::next(text, position);
    return position;
}

bool isWhitespace(char32_t scalar) {
    if (scalar < 0x80)
        return scalar == U' ' || (scalar >= 0x09 && scalar <= 0x0D);
    return u_isUWhiteSpace(static_cast<UChar32>(scalar)) != 0;
}

bool isWhitespace(std::string_view text) {
    std::size_t position = 0;
    while (position < text.size()) {
        if (!isWhitespace(scalarAt(text, position)))
            return false;
    }
    return !text.empty();
}

bool isLineBreak(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

bool isLetter(std::string_view text) {
    const std::optional<char32_t> first = firstScalar(text);
    return first && u_isUAlphabetic(static_cast<UChar32>(*first)) && isOneCharacter(text);
}

namespace {

bool isTrimmed(char32_t scalar, Trim what) {
    return isWhitespace(scalar) && (what == Trim::whitespace || !isLineBreak(scalar));
}

} // namespace

std::string_view trimmed(std::string_view text, Trim what) {
    std::size_t start = text.size();
    std::size_t end = text.size();
    bool found = false;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t before = position;
        if (isTrimmed(scalarAt(text, position), what))
            continue;
        if (!found)
            start = before;
        found = true;
        end = position;
    }
    return text.substr(start, end - start);
}

bool isValid(std::string_view bytes) {
    for (std::size_t position = 0; position < bytes.size();) {
        if (utf8::isAscii(bytes[position]))
            ++position;
        else if (utf8::next(bytes, position) < 0)
            return false;
    }
    return true;
}

void append(std::string& text, char32_t scalar) {
    const bool isScalar = scalar <= 0x10ffff && !U_IS_SURROGATE(scalar);
    utf8::append(text, isScalar ? scalar : utf8::replacement);
}

std::string repaired(std::string_view bytes) {
    if (isValid(bytes))
        return std::string(bytes);
    std::string result;
    result.reserve(bytes.size() + 8);
    for (std::size_t position = 0; position < bytes.size();)
        utf8::append(result, scalarAt(bytes, position));
    return result;
}

std::string encoded(char32_t scalar) {
    std::string text;
    append(text, scalar);
    return text;
}

std::string_view truncated(std::string_view text, std::size_t limit) {
    if (text.size() <= limit)
        return text;
    std::size_t cut = limit;
    while (cut > 0 && limit - cut < 4 && U8_IS_TRAIL(text[cut]))
        --cut;
    return text.substr(0, limit - cut < 4 ? cut : limit);
}

} // namespace quillon::unicode
