#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>

namespace quillon {

/// Text that may be written to a terminal. What comes from elsewhere, a title, a name or an argument, gets in
/// through `of` and `linesOf` alone. There whatever a terminal would obey rather than show is written out as
/// "<U+001B>": control characters, line and paragraph separators, and the characters that reorder the text
/// after them. Bytes that are not UTF-8 become U+FFFD.
class TerminalText {
  public:
    TerminalText() = default;
    /// Text of this program's own, line breaks included.
    template <std::size_t Size>
    TerminalText(const char (&literal)[Size]) : m_text(literal, Size - 1) {}
    /// Text from elsewhere that stays on its line: line breaks are written out, too.
    static TerminalText of(std::string_view foreign);
    /// Lines from elsewhere: "\n" breaks them as usual.
    static TerminalText linesOf(std::string_view foreign);
    /// A sentence of this program's own in the user's language, with what it tells of elsewhere in it. One
    /// line.
    static TerminalText sentence(const QString& text) { return of(text.toStdString()); }
    /// So many blanks.
    static TerminalText blanks(std::size_t count);

    const std::string& bytes() const { return m_text; }
    bool isEmpty() const { return m_text.empty(); }
    /// How many cells a terminal gives to it; of a text without line breaks.
    std::size_t width() const;

    TerminalText& operator+=(const TerminalText& other) {
        m_text += other.m_text;
        return *this;
    }
    friend TerminalText operator+(TerminalText left, const TerminalText& right) { return left += right; }
    bool operator==(const TerminalText&) const = default;

  private:
    std::string m_text;
};

} // namespace quillon
