#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Text is UTF-8. These functions follow Unicode's own rules, independent of the locale (ICU). Bytes that are
/// not UTF-8 never fail: each maximal broken sequence counts as one U+FFFD.
namespace quillon::unicode {

/// The full upper-case mapping ("ß" gives "SS").
std::string toUpper(std::string_view text);

/// The full lower-case mapping of each scalar on its own ("İ" gives "i̇", "Σ" gives "σ" wherever it stands),
/// so that a part of a text is still a part of it when both are lower-cased: what a search needs.
std::string toLower(std::string_view text);

/// Whether `text` is exactly one character as a reader counts them: one extended grapheme cluster.
bool isOneCharacter(std::string_view text);

/// The only scalar value of `text`, absent when it holds none or several.
std::optional<char32_t> onlyScalar(std::string_view text);

/// The first scalar value of `text`, absent when it is empty.
std::optional<char32_t> firstScalar(std::string_view text);

/// How many bytes the first scalar of `text` takes (or the broken sequence that it starts with); 0 when it is
/// empty.
std::size_t firstScalarLength(std::string_view text);

/// Whether every scalar of `text` has the property White_Space; false for the empty text.
bool isWhitespace(std::string_view text);

/// Whether the scalar has the property White_Space.
bool isWhitespace(char32_t scalar);

/// Whether the scalar ends a line: U+000A to U+000D, U+0085, U+2028, U+2029.
bool isLineBreak(char32_t scalar);

/// What `trimmed` takes away.
enum class Trim {
    blanks,     ///< white space other than line breaks
    whitespace, ///< line breaks as well
};

/// `text` without the white space at its ends.
std::string_view trimmed(std::string_view text, Trim what);

/// Whether `text` is one character whose first scalar is alphabetic (general category L or Nl, or property
/// Alphabetic).
bool isLetter(std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool isValid(std::string_view bytes);

/// Writes the scalar behind `text`. What is none (a surrogate, or above U+10FFFF) becomes U+FFFD.
void append(std::string& text, char32_t scalar);

/// `bytes` with every maximal broken sequence replaced by U+FFFD.
std::string repaired(std::string_view bytes);

/// The UTF-8 of a scalar value; of U+FFFD for what is none (a surrogate, or above U+10FFFF).
std::string encoded(char32_t scalar);

/// `text` cut after at most `limit` bytes, never inside of a scalar.
std::string_view truncated(std::string_view text, std::size_t limit);

} // namespace quillon::unicode
