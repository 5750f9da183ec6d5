#include "sheet_text.h"

#include <quillon/kit/cheatsheet/cheat_sheet.h>

#include <QCoreApplication>

#include <algorithm>
#include <string>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t columnGap = 2;

using Row = std::vector<TerminalText>;
using Rows = std::vector<Row>;

TerminalText titleInItsMenu(const MenuEntry& entry) {
    const std::string submenus = entry.submenuPath();
    const std::string title(entry.title());
    return TerminalText::of(submenus.empty() ? title : submenus + std::string(pathSeparator) + title);
}

QString counted(std::size_t count) {
    const int number = static_cast<int>(count);
    if (number == 1)
        return QCoreApplication::translate("CommandLine", "1 shortcut");
    return QCoreApplication::translate("CommandLine", "%1 shortcuts", nullptr, number).arg(number);
}

TerminalText headline(const AppSheet& sheet) {
    return TerminalText::of(sheet.appName.empty() ? sheet.bundleID : sheet.appName)
           + (sheet.bundleID.empty() ? TerminalText() : " (" + TerminalText::of(sheet.bundleID) + ")") + ": "
           + TerminalText::sentence(counted(sheet.entries.size())) + "\n";
}

std::vector<std::size_t> columnWidths(const Rows& rows) {
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].width());
    }
    return widths;
}

TerminalText lineText(const Row& cells, const std::vector<std::size_t>& widths) {
    TerminalText line;
    std::size_t owedBlanks = 0;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        if (!cells[column].isEmpty())
            line += TerminalText::blanks(std::exchange(owedBlanks, 0)) + cells[column];
        owedBlanks += widths[column] - cells[column].width() + columnGap;
    }
    return line + "\n";
}

TerminalText tableText(const Rows& rows, const std::vector<std::size_t>& widths) {
    TerminalText text;
    for (const Row& row : rows)
        text += lineText(row, widths);
    return text;
}

Row rowOf(const MenuEntry& entry, const KeyNames* names) {
    return {
        "  " + titleInItsMenu(entry), TerminalText::of(displayWith(entry.shortcut, names)),
        entry.enabled ? TerminalText()
                      : TerminalText::sentence(QCoreApplication::translate("CommandLine", "(disabled)"))};
}

/// A text that stays on its line in Markdown and on a terminal.
std::string line(const std::string& foreign) {
    return TerminalText::of(foreign).bytes();
}

AppSheet linesOf(AppSheet sheet) {
    sheet.appName = line(sheet.appName);
    for (MenuEntry& entry : sheet.entries)
        std::ranges::transform(entry.path, entry.path.begin(), line);
    return sheet;
}

/// The annotations of a sheet whose titles are lines.
Annotations linesOf(const Annotations& annotations) {
    Annotations lines;
    for (const auto& [id, annotation] : annotations)
        lines[line(id)] = {annotation.pinned, line(annotation.note), annotation.muted};
    return lines;
}

} // namespace

TerminalText tableText(const Rows& rows) {
    return tableText(rows, columnWidths(rows));
}

TerminalText sheetText(const AppSheet& sheet, const KeyNames* names) {
    Rows all;
    for (const MenuEntry& entry : sheet.entries)
        all.push_back(rowOf(entry, names));
    const std::vector<std::size_t> widths = columnWidths(all);

    TerminalText text = headline(sheet);
    for (const MenuGroup& group : sheet.groups()) {
        text += "\n" + TerminalText::of(group.menu) + "\n";
        for (const MenuEntry& entry : group.entries)
            text += lineText(rowOf(entry, names), widths);
    }
    return text;
}

TerminalText practiceText(const std::vector<MenuEntry>& round, const KeyNames* names) {
    Rows rows;
    for (std::size_t i = 0; i < round.size(); ++i)
        rows.push_back(
            {TerminalText::of(std::to_string(i + 1)) + ".", TerminalText::of(round[i].id()),
             TerminalText::of(displayWith(round[i].shortcut, names))});
    return tableText(rows);
}

TerminalText markdownText(const AppSheet& sheet, const Annotations& annotations, const KeyNames* names) {
    return TerminalText::linesOf(CheatSheet::markdown(linesOf(sheet), linesOf(annotations), names));
}

} // namespace quillon
