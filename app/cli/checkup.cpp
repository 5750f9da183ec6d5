#include "checkup.h"

#include <algorithm>
#include <cstddef>

namespace quillon {

namespace {

TerminalText mark(Check::Result result) {
    switch (result) {
    case Check::Result::good: return "ok      ";
    case Check::Result::limited: return "limited ";
    case Check::Result::missing: return "missing ";
    }
    return "";
}

TerminalText lineText(const Check& check, std::size_t subjectWidth) {
    TerminalText line = mark(check.result) + TerminalText::of(check.subject);
    line += TerminalText::blanks(subjectWidth - TerminalText::of(check.subject).width() + 2);
    return line + TerminalText::of(check.finding) + "\n";
}

} // namespace

TerminalText checkupText(const std::vector<Check>& checks) {
    std::size_t widest = 0;
    for (const Check& check : checks)
        widest = std::max(widest, TerminalText::of(check.subject).width());

    TerminalText text;
    for (const Check& check : checks) {
        text += lineText(check, widest);
        if (!check.remedy.empty())
            text += "        → " + TerminalText::of(check.remedy) + "\n";
    }
    return text;
}

bool allWell(const std::vector<Check>& checks) {
    return std::ranges::none_of(
        checks, [](const Check& check) { return check.result == Check::Result::missing; });
}

} // namespace quillon
