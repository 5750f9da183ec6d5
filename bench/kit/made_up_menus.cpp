#include "made_up_menus.h"

#include <array>
#include <string>
#include <string_view>

namespace quillon {

namespace {

constexpr std::array titles{"Save As…", "Export Selection", "Bring to Front", "Find Next",  "Größe ändern",
                            "Zoom In",  "Show Layers",      "Paste in Place", "Select All", "Align Left"};

std::string numbered(std::string_view name, int number) {
    return std::string(name).append(" ").append(std::to_string(number));
}

RawMenuItem madeUpItem(int number) {
    RawMenuItem item;
    if (number % 12 == 11)
        return item;
    item.title = numbered(titles[static_cast<std::size_t>(number) % titles.size()], number);
    item.enabled = number % 7 != 0;
    item.cmdModifiers = number % 8;
    if (number % 4 != 0)
        item.cmdChar = std::string(1, static_cast<char>('a' + number % 26));
    return item;
}

} // namespace

std::vector<RawMenuItem> madeUpMenuBar(int items) {
    std::vector<RawMenuItem> bar(10);
    int made = 0;
    for (std::size_t menu = 0; made < items; menu = (menu + 1) % bar.size()) {
        bar[menu].title = numbered("Menu", static_cast<int>(menu));
        RawMenuItem& item = bar[menu].children.emplace_back(madeUpItem(made++));
        if (made % 8 == 0) {
            item.title = numbered("Submenu", made);
            for (int child = 0; child < 10 && made < items; ++child)
                item.children.push_back(madeUpItem(made++));
        }
    }
    return bar;
}

std::vector<MenuEntry> madeUpEntries(int count) {
    std::vector<MenuEntry> entries;
    for (int i = 0; i < count; ++i) {
        std::vector<std::string> path{numbered("Menu", i % 10)};
        if (i % 3 == 0)
            path.emplace_back("Submenu");
        path.push_back(numbered(titles[static_cast<std::size_t>(i) % titles.size()], i));
        const Key key = i % 5 == 0
                            ? Key::special(allSpecialKeys[static_cast<std::size_t>(i) % specialKeyCount])
                            : Key::character(std::string(1, static_cast<char>('A' + i % 26)));
        entries.push_back({std::move(path), {Modifiers(1 + i % 15), key}, i % 7 != 0});
    }
    return entries;
}

SheetMap madeUpSheets(int applications, int entries) {
    SheetMap sheets;
    for (int i = 0; i < applications; ++i) {
        const std::string bundleID = numbered("org.example.Application", i);
        sheets[bundleID] = {
            bundleID, numbered("Application", i), madeUpEntries(entries),
            Instant(std::chrono::seconds(1'790'000'000))};
    }
    return sheets;
}

} // namespace quillon
