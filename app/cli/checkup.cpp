#include "checkup.h"

#include "terminal_width.h"

#include <algorithm>
#include <string_view>

namespace quillon {

namespace {

std::string_view mark(Check::Result result) {
    switch (result) {
    case Check::Result::good: return "ok      ";
    case Check::Result::limited: return "limited ";
    case Check::Result::missing: return "missing ";
    }
    return "";
}

} // namespace

std::string checkupText(const std::vector<Check>& checks) {
    std::size_t widest = 0;
    for (const Check& check : checks)
        widest = std::max(widest, terminalWidth(check.subject));

    std::string text;
    for (const Check& check : checks) {
        const std::size_t padding = widest - terminalWidth(check.subject) + 2;
        text += std::string(mark(check.result)) + check.subject + std::string(padding, ' ') + check.finding;
        text += '\n';
        if (!check.remedy.empty())
            text += "        → " + check.remedy + '\n';
    }
    return text;
}

bool allWell(const std::vector<Check>& checks) {
    return std::ranges::none_of(
        checks, [](const Check& check) { return check.result == Check::Result::missing; });
}

} // namespace quillon
