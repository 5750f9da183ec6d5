#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The number of a release: "1.2", "v1.2.0", "2.0-beta.2", "2.0rc1", "1.4.0+build5".
class ReleaseVersion {
  public:
    /// Longer ones are none. In bytes.
    static constexpr std::size_t longest = 64;

    /// Absent for what does not begin with a number (after a "v") or holds more than letters, digits and the
    /// signs . - ~ +.
    static std::optional<ReleaseVersion> fromText(std::string_view text);

    /// By its numbers, of which one that is missing counts as 0; what comes before the release itself
    /// ("-beta", "rc1") is older than it. Parts of such a name are compared one by one: numbers by their
    /// value, words by their letters and whatever their case, a number before a word. What stands behind a
    /// plus does not count.
    std::strong_ordering operator<=>(const ReleaseVersion& other) const;
    bool operator==(const ReleaseVersion& other) const = default;

    /// A run of digits or of letters.
    struct Part {
        std::string text; ///< digits without leading zeros; letters in lower case
        bool isNumber = false;

        bool operator==(const Part&) const = default;
        std::strong_ordering operator<=>(const Part& other) const;
    };

  private:
    std::vector<Part> m_numbers; ///< without zeros at the end
    std::vector<Part> m_before;  ///< empty for the release itself
};

} // namespace quillon
