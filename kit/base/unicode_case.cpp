#include "ascii.h"
#include "program_error.h"
#include "unicode.h"
#include "utf8.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/stringpiece.h>
#include <unicode/uchar.h>

#include <algorithm>

namespace quillon::unicode {

namespace {

/// Whether no byte starts a longer sequence. Vectorises, unlike a search for the first such byte.
bool isAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char byte : text)
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(byte));
    return all < 0x80;
}

void appendLower(std::string& result, char32_t scalar) {
    // The only unconditional mapping to several scalars (SpecialCasing.txt); u_tolower() knows none of them.
    if (scalar == 0x130)
        result += "i\u0307";
    else
        utf8::append(result, static_cast<char32_t>(u_tolower(static_cast<UChar32>(scalar))));
}

} // namespace

std::string toUpper(std::string_view text) {
    std::string result;
    if (isAscii(text)) {
        result.resize(text.size());
        std::ranges::transform(text, result.begin(), ascii::toUpper);
        return result;
    }
    const std::string source = repaired(text);
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    icu::CaseMap::utf8ToUpper("", 0, icu::StringPiece(source), sink, nullptr, status);
    if (U_FAILURE(status))
        programError("the Unicode library must map every well-formed text to upper case");
    return result;
}

std::string toLower(std::string_view text) {
    if (isAscii(text))
        return ascii::toLower(text);
    std::string result;
    result.reserve(text.size() + 4);
    for (std::size_t position = 0; position < text.size();) {
        if (utf8::isAscii(text[position])) {
            result += ascii::toLower(text[position++]);
            continue;
        }
        const std::int32_t scalar = utf8::next(text, position);
        appendLower(result, scalar < 0 ? utf8::replacement : static_cast<char32_t>(scalar));
    }
    return result;
}

} // namespace quillon::unicode
