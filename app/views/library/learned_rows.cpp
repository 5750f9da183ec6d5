#include "learned_rows.h"

#include <quillon/app/views/learned/learned_texts.h>

#include <utility>

namespace quillon {

std::vector<LibraryRow> learnedRows(const LearnedSummary& summary) {
    std::vector<LibraryRow> rows{{.kind = LibraryRow::Kind::heading, .text = LearnedTexts::heading()}};
    if (QString weeks = LearnedTexts::weeksInWords(summary); !weeks.isEmpty())
        rows.push_back({.kind = LibraryRow::Kind::weeks, .text = std::move(weeks), .weeks = summary.weeks});
    rows.push_back({.kind = LibraryRow::Kind::remark, .text = LearnedTexts::graduated(summary)});
    if (QString saved = LearnedTexts::timeSaved(summary.typed); !saved.isEmpty())
        rows.push_back({.kind = LibraryRow::Kind::remark, .text = std::move(saved)});
    return rows;
}

} // namespace quillon
