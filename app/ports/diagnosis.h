#pragma once

#include <string>
#include <vector>

namespace quillon {

/// One thing that the program needs, and what was found of it.
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

/// Looks at what a desktop offers to the program, for commands that have nothing to do but wait for it.
class Diagnosis {
  public:
    virtual ~Diagnosis() = default;

    /// Everything that was looked at, with a remedy for whatever is not well. Waits for other processes
    /// within bounds.
    virtual std::vector<Check> checks() = 0;
};

} // namespace quillon
