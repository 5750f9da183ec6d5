#pragma once

#include <string>
#include <vector>

namespace quillon {

/// One thing that the program needs of the desktop.
struct Check {
    enum class Result {
        good,
        limited, ///< the program works without it, less well
        missing
    };

    std::string subject; ///< "Accessibility bus"
    Result result = Result::good;
    std::string finding; ///< what was found: "answers", "is off"
    std::string remedy;  ///< what to do about it; empty when nothing has to be done

    bool operator==(const Check&) const = default;
};

/// The checks as a table for the terminal, each remedy on the line below its check.
std::string checkupText(const std::vector<Check>& checks);

/// Whether nothing is missing.
bool allWell(const std::vector<Check>& checks);

} // namespace quillon
