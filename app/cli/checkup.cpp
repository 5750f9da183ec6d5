#include "checkup.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>

namespace quillon {

namespace {

TerminalText mark(Check::Result result) {
    const auto text = [result] {
        switch (result) {
        case Check::Result::good: return QCoreApplication::translate("Doctor", "ok");
        case Check::Result::limited: return QCoreApplication::translate("Doctor", "limited");
        case Check::Result::missing: break;
        }
        return QCoreApplication::translate("Doctor", "missing");
    };
    return TerminalText::sentence(text());
}

TerminalText padded(const TerminalText& text, std::size_t width) {
    return text + TerminalText::blanks(width - text.width());
}

std::size_t widestMark() {
    std::size_t widest = 0;
    for (const auto result : {Check::Result::good, Check::Result::limited, Check::Result::missing})
        widest = std::max(widest, mark(result).width());
    return widest;
}

} // namespace

TerminalText checkupText(const std::vector<Check>& checks) {
    std::size_t widest = 0;
    for (const Check& check : checks)
        widest = std::max(widest, TerminalText::of(check.subject).width());
    const std::size_t indent = widestMark() + 1;

    TerminalText text;
    for (const Check& check : checks) {
        text += padded(mark(check.result), indent) + padded(TerminalText::of(check.subject), widest + 2)
                + TerminalText::of(check.finding) + "\n";
        if (!check.remedy.empty())
            text += TerminalText::blanks(indent) + "→ " + TerminalText::of(check.remedy) + "\n";
    }
    return text;
}

bool allWell(const std::vector<Check>& checks) {
    return std::ranges::none_of(
        checks, [](const Check& check) { return check.result == Check::Result::missing; });
}

} // namespace quillon
