#include "read_app.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace quillon {

namespace {

RawMenuItem& itemCalled(const std::string& title, std::vector<RawMenuItem>& items) {
    const auto known = std::ranges::find(items, title, &RawMenuItem::title);
    return known != items.end() ? *known : items.emplace_back(RawMenuItem{.title = title});
}

void add(const MenuEntry& entry, std::vector<RawMenuItem>& menuBar) {
    std::vector<RawMenuItem>* items = &menuBar;
    for (const std::string& title : std::span(entry.path).first(entry.path.size() - 1))
        items = &itemCalled(title, *items).children;
    const std::string* const key = entry.shortcut.key.asCharacter();
    items->push_back(
        {.title = entry.path.back(),
         .cmdChar = key ? *key : "K",
         .cmdModifiers = entry.shortcut.modifiers.axMask(),
         .enabled = entry.enabled});
}

} // namespace

void readApp(ViewDesk& desk, const AppSheet& sheet) {
    MenuReading reading{.menuBar = {}, .outcome = ReadOutcome::complete};
    for (const MenuEntry& entry : sheet.entries)
        add(entry, reading.menuBar);
    desk.desktop.menus.answer(sheet.bundleID, std::move(reading));
    const RunningApp app{2, sheet.bundleID, sheet.appName, {}};
    desk.desktop.front.setCurrent(app);
    desk.desktop.access.setTrusted(true);
    desk.model.refreshTrust();
    desk.model.frontAppChanged(app);
    desk.desktop.background.runAll();
}

} // namespace quillon
