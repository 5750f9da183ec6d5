#include "terminal_width.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace quillon {

namespace {

std::size_t cellsOf(UChar32 scalar) {
    const int category = u_charType(scalar);
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK || category == U_FORMAT_CHAR)
        return 0;
    const int width = u_getIntPropertyValue(scalar, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

} // namespace

std::size_t terminalWidth(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    std::size_t cells = 0;
    for (std::int64_t position = 0; position < length;) {
        UChar32 scalar = 0;
        U8_NEXT_OR_FFFD(bytes, position, length, scalar);
        cells += cellsOf(scalar);
    }
    return cells;
}

} // namespace quillon
