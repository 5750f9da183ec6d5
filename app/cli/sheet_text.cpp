#include "sheet_text.h"

#include "terminal_width.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t columnGap = 2;

std::string titleInItsMenu(const MenuEntry& entry) {
    const std::string submenus = entry.submenuPath();
    const std::string title(entry.title());
    return submenus.empty() ? title : submenus + std::string(pathSeparator) + title;
}

std::string headline(const AppSheet& sheet) {
    const std::string count = std::to_string(sheet.entries.size());
    const std::string name = sheet.appName.empty() ? sheet.bundleID : sheet.appName;
    return name + " (" + sheet.bundleID + "): " + count
           + (sheet.entries.size() == 1 ? " shortcut\n" : " shortcuts\n");
}

using Rows = std::vector<std::vector<std::string>>;

std::vector<std::size_t> columnWidths(const Rows& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], terminalWidth(row[column]));
    }
    return widths;
}

std::string lineText(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) {
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        line += cells[column];
        line.append(widths[column] - terminalWidth(cells[column]) + columnGap, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string tableText(const Rows& rows, const std::vector<std::size_t>& widths) {
    std::string text;
    for (const auto& row : rows)
        text += lineText(row, widths);
    return text;
}

std::vector<std::string> rowOf(const MenuEntry& entry) {
    return {"  " + titleInItsMenu(entry), entry.shortcut.display(), entry.enabled ? "" : "(disabled)"};
}

} // namespace

std::string tableText(const Rows& rows) {
    return tableText(rows, columnWidths(rows));
}

std::string sheetText(const AppSheet& sheet) {
    Rows all;
    for (const MenuEntry& entry : sheet.entries)
        all.push_back(rowOf(entry));
    const std::vector<std::size_t> widths = columnWidths(all);

    std::string text = headline(sheet);
    for (const MenuGroup& group : sheet.groups()) {
        text += '\n' + group.menu + '\n';
        for (const MenuEntry& entry : group.entries)
            text += lineText(rowOf(entry), widths);
    }
    return text;
}

std::string practiceText(const std::vector<MenuEntry>& round) {
    Rows rows;
    for (std::size_t i = 0; i < round.size(); ++i)
        rows.push_back({std::to_string(i + 1) + '.', round[i].id(), round[i].shortcut.display()});
    return tableText(rows);
}

} // namespace quillon
