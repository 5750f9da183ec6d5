#include "prepared_sheet.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>

#include <QTextBoundaryFinder>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace quillon {

namespace {

/// Numbers the top-level menus in order of first appearance.
class MenuNumbers {
  public:
    explicit MenuNumbers(std::vector<QString>& titles) : m_titles(titles) {}

    std::size_t of(std::string_view menu) {
        const auto [place, isNew] = m_numbers.try_emplace(menu, m_titles.size());
        if (isNew)
            m_titles.push_back(foreignLine(menu));
        return place->second;
    }

  private:
    std::vector<QString>& m_titles;
    std::unordered_map<std::string_view, std::size_t> m_numbers;
};

/// More than any row or tooltip has room for; a bound for those who measure and draw it.
constexpr qsizetype longestNote = 1000;
/// What one unit of UTF-16 takes at most as UTF-8.
constexpr std::size_t mostBytes = 3;

} // namespace

QString noteLine(std::string_view note) {
    const std::string_view beginning = note.substr(0, mostBytes * (longestNote + 1));
    QString line = singleLine(beginning);
    const bool isCut = line.size() > longestNote || beginning.size() < note.size();
    if (isCut) {
        const qsizetype most = std::min(longestNote, line.size() - 1); // the last letter may be a part of one
        QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, line);
        letters.setPosition(most);
        line.truncate(letters.isAtBoundary() ? most : letters.toPreviousBoundary());
    }
    line = foreignLine(utf8(line));
    return isCut ? line + u'…' : line;
}

PreparedSheet
PreparedSheet::prepare(const AppSheet& sheet, const AnnotationBook& annotations, const UsageBook& usage) {
    PreparedSheet prepared{
        .bundleID = sheet.bundleID, .appName = foreignLine(sheet.appName), .entries = {}, .menus = {}};
    const Annotations& said = annotations.annotations(sheet.bundleID);
    const UsageRecords& records = usage.records(sheet.bundleID);
    MenuNumbers menus(prepared.menus);

    prepared.entries.reserve(sheet.entries.size());
    for (const MenuEntry& entry : sheet.entries) {
        PreparedEntry made{
            .id = entry.id(),
            .title = foreignLine(entry.title()),
            .submenu = foreignLine(entry.submenuPath()),
            .shortcut = entry.shortcut,
            .menu = menus.of(entry.menu()),
            .enabled = entry.enabled,
            .note = {},
        };
        if (const auto annotation = said.find(made.id); annotation != said.end()) {
            made.pinned = annotation->second.pinned;
            made.muted = annotation->second.muted;
            made.note = noteLine(annotation->second.note);
        }
        if (const auto record = records.find(made.id); record != records.end()) {
            made.clicked = record->second.clicked;
            made.typed = record->second.typed;
        }
        prepared.entries.push_back(std::move(made));
    }
    return prepared;
}

} // namespace quillon
