#include "json_writer.h"

#include <quillon/kit/base/unicode.h>

#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace quillon {

namespace {

bool needsEscape(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == '"' || character == '\\'
           || character == '/';
}

void appendEscaped(std::string& json, char character) {
    static constexpr std::string_view hexDigits = "0123456789abcdef";
    switch (character) {
    case '\b': json += "\\b"; return;
    case '\t': json += "\\t"; return;
    case '\n': json += "\\n"; return;
    case '\f': json += "\\f"; return;
    case '\r': json += "\\r"; return;
    case '"':
    case '\\':
    case '/': json.append("\\").push_back(character); return;
    default:
        json += "\\u00";
        json += hexDigits[static_cast<unsigned char>(character) >> 4];
        json += hexDigits[static_cast<unsigned char>(character) & 0xF];
    }
}

} // namespace

void JsonWriter::separate() {
    if (m_json.empty())
        return;
    const char last = m_json.back();
    if (last != '{' && last != '[' && last != ':')
        m_json += ',';
}

void JsonWriter::open(char bracket) {
    separate();
    m_json += bracket;
}

void JsonWriter::close(char bracket) {
    m_json += bracket;
}

void JsonWriter::key(std::string_view name) {
    separate();
    quoted(name);
    m_json += ':';
}

void JsonWriter::text(std::string_view value) {
    separate();
    quoted(value);
}

void JsonWriter::integer(std::int64_t value) {
    separate();
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 3> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    m_json.append(digits.data(), end);
}

void JsonWriter::boolean(bool value) {
    separate();
    m_json += value ? "true" : "false";
}

void JsonWriter::quoted(std::string_view value) {
    m_valid = m_valid && unicode::isValid(value);
    m_json += '"';
    std::size_t written = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (!needsEscape(value[i]))
            continue;
        m_json.append(value, written, i - written);
        appendEscaped(m_json, value[i]);
        written = i + 1;
    }
    m_json.append(value, written, value.size() - written);
    m_json += '"';
}

std::optional<std::string> JsonWriter::take() && {
    return m_valid ? std::optional(std::move(m_json)) : std::nullopt;
}

} // namespace quillon
