#include "cheat_sheet.h"

#include <quillon/kit/base/program_error.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quillon::CheatSheet {

namespace {

using Block = std::span<const Line>;

/// The block that `lines` begin with: a line and the notes that belong to it. Empty for no lines.
Block firstBlock(Block lines) {
    std::size_t length = std::min<std::size_t>(1, lines.size());
    while (length < lines.size() && std::holds_alternative<Note>(lines[length]))
        ++length;
    return lines.first(length);
}

/// Fills columns from the top.
class Columns {
  public:
    explicit Columns(std::size_t linesPerColumn) : m_capacity(linesPerColumn) {}

    void add(const Heading& heading, Block lines) {
        if (!m_current.empty() && !fits(1 + firstBlock(lines).size()))
            finish();
        m_current.push_back(Heading{heading.text, false});
        while (!lines.empty()) {
            const Block block = firstBlock(lines);
            lines = lines.subspan(block.size());
            if (!fits(block.size())) {
                finish();
                m_current.push_back(Heading{heading.text, true});
            }
            m_current.insert(m_current.end(), block.begin(), block.end());
        }
    }

    std::vector<Column> take() {
        if (!m_current.empty())
            finish();
        return std::move(m_finished);
    }

  private:
    bool fits(std::size_t more) const { return m_current.size() + more <= m_capacity; }
    void finish() { m_finished.push_back(std::exchange(m_current, {})); }

    std::size_t m_capacity; ///< lines
    std::vector<Column> m_finished;
    Column m_current;
};

} // namespace

std::vector<Page> paginate(std::span<const Group> groups, PageSize size) {
    if (size.linesPerColumn < 4)
        programError("paginate: a column must hold at least 4 lines");
    if (size.columns < 1)
        programError("paginate: a page must have at least 1 column");
    Columns columns(static_cast<std::size_t>(size.linesPerColumn));
    for (const Group& group : groups) {
        if (group.empty())
            continue;
        if (const Heading* heading = std::get_if<Heading>(&group.front()))
            columns.add(*heading, std::span(group).subspan(1));
    }
    std::vector<Page> pages;
    for (Column& column : columns.take()) {
        if (pages.empty() || pages.back().size() == static_cast<std::size_t>(size.columns))
            pages.emplace_back();
        pages.back().push_back(std::move(column));
    }
    return pages;
}

} // namespace quillon::CheatSheet
