#include "many_entries.h"

#include <array>
#include <vector>

namespace quillon {

namespace {

constexpr std::array menus{"File",   "Edit",  "Select",  "View",    "Image",   "Layer",
                           "Colors", "Tools", "Filters", "Scripts", "Windows", "Help"};
constexpr std::array submenus{"", "", "Transform", "", "Align and Distribute", "", "Guides", ""};
constexpr std::array verbs{"Open",   "Duplicate", "Rotate", "Merge Visible", "Crop to",   "Convert to",
                           "Toggle", "Show",      "Export", "Rename",        "Fill with", "Reset"};
constexpr std::array nouns{"Layer", "Selection", "Canvas", "Palette", "Guide",      "Background Colour",
                           "Path",  "Channel",   "Brush",  "Grid",    "Perspective"};

Shortcut shortcutNumber(std::size_t number) {
    static constexpr std::array modifierSets{
        Modifiers::command, Modifiers{Modifiers::shift, Modifiers::command},
        Modifiers{Modifiers::option, Modifiers::command}, Modifiers::control,
        Modifiers{Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command}};
    const Modifiers modifiers = modifierSets[number / 26 % modifierSets.size()];
    if (number % 9 == 4)
        return {modifiers, Key::special(allSpecialKeys[number / 9 % allSpecialKeys.size()])};
    return {modifiers, Key::character(std::string(1, static_cast<char>('A' + number % 26)))};
}

MenuEntry entry(std::vector<std::string> path, Shortcut shortcut, bool enabled = true) {
    return {std::move(path), std::move(shortcut), enabled};
}

} // namespace

AppSheet sheetOfMany(std::size_t count) {
    AppSheet sheet{.bundleID = "org.example.Atelier", .appName = "Atelier", .entries = {}};
    const std::size_t perMenu = (count + menus.size() - 1) / menus.size();
    for (std::size_t i = 0; i < count; ++i) {
        std::vector<std::string> path{menus[i / perMenu]};
        if (const std::string submenu = submenus[i % perMenu / 5 % submenus.size()]; !submenu.empty())
            path.push_back(submenu);
        path.push_back(
            std::string(verbs[i % verbs.size()]) + " " + nouns[i % nouns.size()]
            + (i < verbs.size() * nouns.size() ? "" : " " + std::to_string(i)));
        sheet.entries.push_back(entry(std::move(path), shortcutNumber(i), i % 13 != 5));
    }
    return sheet;
}

AppSheet sheetOfLongTitles() {
    const auto shiftCommand = Modifiers{Modifiers::shift, Modifiers::command};
    const auto all = Modifiers{Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command};
    AppSheet sheet{.bundleID = "org.example.Schreiber", .appName = "Schreiber", .entries = {}};
    const auto add = [&](std::vector<std::string> path, Modifiers modifiers, const std::string& key) {
        sheet.entries.push_back(entry(std::move(path), {modifiers, Key::character(key)}));
    };
    add({"Datei", "Neues Dokument aus Vorlage erstellen und im gleichen Fenster öffnen…"}, shiftCommand, "N");
    add({"Datei", "Speichern"}, Modifiers::command, "S");
    add({"Datei", "Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichenverwaltung"}, all, "D");
    add({"Datei", "Exportieren", "Als druckoptimiertes PDF mit eingebetteten Schriften exportieren"}, all,
        "E");
    add({"Bearbeiten", "Rückgängig"}, Modifiers::command, "Z");
    add({"Bearbeiten", "Suchen und Ersetzen in allen geöffneten Dokumenten"}, shiftCommand, "F");
    add({"עריכה", "העתקת העיצוב של הטקסט המסומן אל כל הפסקאות הבאות במסמך"}, Modifiers::command, "C");
    add({"עריכה", "הדבקה"}, Modifiers::command, "V");
    add({"تنسيق", "محاذاة النص إلى اليمين"}, Modifiers::command, "R");
    add({"表示", "ページ全体を表示する"}, Modifiers::command, "0");
    add({"Emoji", "👩‍👩‍👧‍👦 Familie einfügen 🇩🇪"}, Modifiers::command, "J");
    sheet.entries.push_back(entry({"Ansicht", "Vollbild"}, {all, Key::special(SpecialKey::space)}));
    sheet.entries.push_back(entry(
        {"Ansicht", "Zum Anfang des nächsten Absatzes springen"}, {all, Key::special(SpecialKey::f19)}));
    return sheet;
}

AppSheet emptySheet(std::string appName) {
    return {.bundleID = "org.example." + appName, .appName = std::move(appName), .entries = {}};
}

} // namespace quillon
