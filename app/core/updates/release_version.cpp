#include "release_version.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

bool isDigit(char sign) {
    return sign >= '0' && sign <= '9';
}

bool isLetter(char sign) {
    return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z');
}

bool isSeparator(char sign) {
    return sign == '.' || sign == '-' || sign == '~';
}

char lower(char sign) {
    return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos)
        return {};
    return text.substr(start, text.find_last_not_of(blanks) - start + 1);
}

template <class Belongs>
std::string_view takeRun(std::string_view& text, Belongs belongs) {
    const auto end = std::ranges::find_if_not(text, belongs);
    const std::string_view run = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(run.size());
    return run;
}

ReleaseVersion::Part number(std::string_view digits) {
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return {digits.empty() ? "0" : std::string(digits), true};
}

ReleaseVersion::Part word(std::string_view letters) {
    std::string text(letters);
    std::ranges::transform(text, text.begin(), lower);
    return {std::move(text), false};
}

/// "1.2.3" off the front of a text that begins with a digit; a dot without a digit behind it stays.
std::vector<ReleaseVersion::Part> takeNumbers(std::string_view& text) {
    std::vector<ReleaseVersion::Part> numbers{number(takeRun(text, isDigit))};
    while (text.size() > 1 && text[0] == '.' && isDigit(text[1])) {
        text.remove_prefix(1);
        numbers.push_back(number(takeRun(text, isDigit)));
    }
    while (numbers.size() > 1 && numbers.back().text == "0")
        numbers.pop_back();
    return numbers;
}

/// Absent for other signs than a version has.
std::optional<std::vector<ReleaseVersion::Part>> parts(std::string_view text) {
    std::vector<ReleaseVersion::Part> parts;
    while (!text.empty()) {
        if (isDigit(text[0]))
            parts.push_back(number(takeRun(text, isDigit)));
        else if (isLetter(text[0]))
            parts.push_back(word(takeRun(text, isLetter)));
        else if (isSeparator(text[0]))
            text.remove_prefix(1);
        else
            return std::nullopt;
    }
    return parts;
}

bool isBuildName(std::string_view text) {
    return std::ranges::all_of(
        text, [](char sign) { return isDigit(sign) || isLetter(sign) || isSeparator(sign); });
}

} // namespace

std::optional<ReleaseVersion> ReleaseVersion::fromText(std::string_view text) {
    text = trimmed(text);
    if (text.size() > longest)
        return std::nullopt;
    if (text.starts_with('v') || text.starts_with('V'))
        text.remove_prefix(1);
    if (const auto plus = text.find('+'); plus != std::string_view::npos) {
        if (!isBuildName(text.substr(plus + 1)))
            return std::nullopt;
        text = text.substr(0, plus);
    }
    if (text.empty() || !isDigit(text[0]))
        return std::nullopt;
    ReleaseVersion version;
    version.m_numbers = takeNumbers(text);
    auto before = parts(text);
    if (!before)
        return std::nullopt;
    version.m_before = *std::move(before);
    return version;
}

std::strong_ordering ReleaseVersion::Part::operator<=>(const Part& other) const {
    if (isNumber != other.isNumber)
        return isNumber ? std::strong_ordering::less : std::strong_ordering::greater;
    if (isNumber && text.size() != other.text.size())
        return text.size() <=> other.text.size();
    return text <=> other.text;
}

std::strong_ordering ReleaseVersion::operator<=>(const ReleaseVersion& other) const {
    // Zeros at the end are gone, so of two that agree as far as both go the longer one is greater.
    if (const auto byNumbers = m_numbers <=> other.m_numbers; byNumbers != 0)
        return byNumbers;
    if (m_before.empty() != other.m_before.empty())
        return m_before.empty() ? std::strong_ordering::greater : std::strong_ordering::less;
    return m_before <=> other.m_before;
}

} // namespace quillon
