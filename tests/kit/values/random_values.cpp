#include "random_values.h"

#include <array>
#include <limits>
#include <string_view>

namespace quillon {

using namespace std::string_view_literals;

namespace {

constexpr std::array pieces{
    "a"sv,         "B"sv,
    "File"sv,      "Save As…"sv,
    " "sv,         "/"sv,
    "\\"sv,        "\""sv,
    "'"sv,         "›"sv,
    " › "sv,       "⌘"sv,
    "⇧⌘S"sv,       "é"sv,
    "e\u0301"sv,   "ß"sv,
    "İ"sv,         "Σ"sv,
    "\n"sv,        "\r\n"sv,
    "\t"sv,        "\0"sv,
    "\x01"sv,      "\x1f"sv,
    "\x7f"sv,      "\u0085"sv,
    "\u00a0"sv,    "\u2028"sv,
    "\u202e"sv,    "\ufeff"sv,
    "\uffff"sv,    "\ufffd"sv,
    "😀"sv,         "👩‍👩‍👧"sv,
    "🇩🇪"sv,        "\U0010ffff"sv,
    "שלום"sv,      "中文"sv,
    "\\u0041"sv,   "</script>"sv,
    "{\"a\":1}"sv, "cmd"sv,
    "\uf704"sv,    "opt alt"sv,
    "null"sv,      "0"sv,
    "-1"sv,        "."sv,
    ","sv,
};

constexpr std::array titles{
    "Save"sv, "Save As…"sv, "Copy"sv, "Copy Style"sv, "Find Next"sv, "Über"sv, "Ωμέγα"sv, "中文"sv,
};

constexpr std::array menus{"File"sv, "Edit"sv, "View"sv, "Ansicht"sv};

} // namespace

std::size_t RandomValues::number(std::size_t least, std::size_t most) {
    return std::uniform_int_distribution<std::size_t>(least, most)(m_random);
}

bool RandomValues::chance(double probability) {
    return std::bernoulli_distribution(probability)(m_random);
}

std::int64_t RandomValues::integer() {
    const auto any = static_cast<std::int64_t>(m_random());
    switch (number(0, 9)) {
    case 0: return std::numeric_limits<std::int64_t>::max();
    case 1: return std::numeric_limits<std::int64_t>::min();
    case 2: return any;
    default: return any % 100;
    }
}

std::string RandomValues::text() {
    std::string text;
    for (std::size_t left = number(0, 6); left > 0; --left)
        text += pieces[number(0, pieces.size() - 1)];
    return text;
}

std::string RandomValues::title() {
    std::string title(titles[number(0, titles.size() - 1)]);
    if (chance(0.3))
        title += " " + std::to_string(number(0, 9));
    return title;
}

Instant RandomValues::instant() {
    using namespace std::chrono;
    constexpr sys_seconds first = sys_days{year{1} / 1 / 1};
    constexpr sys_seconds last = sys_days{year{10'000} / 1 / 1} - seconds{1};
    const auto span = static_cast<std::size_t>((last - first).count());
    return first + seconds{static_cast<std::int64_t>(number(0, span))};
}

Key RandomValues::key() {
    if (chance(0.4))
        return Key::special(allSpecialKeys[number(0, specialKeyCount - 1)]);
    return Key::character(chance(0.2) ? text() : std::string(1, static_cast<char>(number('!', '`'))));
}

Modifiers RandomValues::modifiers() {
    return Modifiers(chance(0.1) ? integer() : static_cast<std::int64_t>(number(0, 15)));
}

Shortcut RandomValues::shortcut() {
    return {modifiers(), key()};
}

MenuEntry RandomValues::entry() {
    std::vector<std::string> path;
    for (std::size_t left = number(0, 4); left > 0; --left)
        path.push_back(text());
    return {std::move(path), shortcut(), chance(0.8)};
}

std::vector<MenuEntry> RandomValues::entries(std::size_t count) {
    std::vector<MenuEntry> entries;
    while (entries.size() < count) {
        std::vector<std::string> path{std::string(menus[number(0, menus.size() - 1)])};
        for (std::size_t left = number(1, 2); left > 0; --left)
            path.push_back(title());
        entries.push_back({std::move(path), shortcut(), chance(0.8)});
    }
    return entries;
}

AppSheet RandomValues::sheet() {
    AppSheet sheet{text(), text(), {}, instant()};
    for (std::size_t left = number(0, 8); left > 0; --left)
        sheet.entries.push_back(entry());
    return sheet;
}

SheetMap RandomValues::sheets() {
    SheetMap sheets;
    for (std::size_t left = number(0, 4); left > 0; --left)
        sheets.insert_or_assign(text(), sheet());
    return sheets;
}

Count RandomValues::count() {
    switch (number(0, 9)) {
    case 0: return 0;
    case 1: return largestStoredCount;
    default: return static_cast<Count>(number(0, 100));
    }
}

UsageRecord RandomValues::usageRecord() {
    UsageRecord record{count(), count(), count(), count()};
    if (chance(0.5))
        record.lastClicked = instant();
    if (chance(0.5))
        record.lastNudged = instant();
    return record;
}

UsageBook RandomValues::usageBook() {
    UsageBook book;
    for (std::size_t apps = number(0, 3); apps > 0; --apps) {
        UsageRecords& records = book.apps[text()];
        for (std::size_t left = number(0, 5); left > 0; --left)
            records.insert_or_assign(text(), usageRecord());
    }
    return book;
}

AnnotationBook RandomValues::annotationBook() {
    AnnotationBook book;
    for (std::size_t left = number(0, 12); left > 0; --left)
        book.set(text(), text(), {chance(0.4), text(), chance(0.2)});
    return book;
}

RawMenuItem RandomValues::rawItem(int depth) {
    RawMenuItem item;
    if (!chance(0.1))
        item.title = chance(0.3) ? text() : " " + title();
    item.enabled = chance(0.8);
    if (chance(0.7))
        item.cmdChar = chance(0.2) ? text() : std::string(1, static_cast<char>(number(0, 127)));
    if (chance(0.7))
        item.cmdModifiers = static_cast<std::int64_t>(number(0, 15));
    if (chance(0.3))
        item.cmdGlyph = static_cast<std::int64_t>(number(0, 150));
    if (chance(0.3))
        item.cmdVirtualKey = static_cast<std::int64_t>(number(0, 130));
    if (depth > 0 && chance(0.4)) {
        for (std::size_t left = number(1, 5); left > 0; --left)
            item.children.push_back(rawItem(depth - 1));
    }
    return item;
}

std::vector<RawMenuItem> RandomValues::menuBar() {
    std::vector<RawMenuItem> bar;
    for (std::size_t left = number(0, 6); left > 0; --left) {
        RawMenuItem menu;
        menu.title = chance(0.2) ? text() : std::string(menus[number(0, menus.size() - 1)]);
        for (std::size_t items = number(0, 8); items > 0; --items)
            menu.children.push_back(rawItem(5));
        bar.push_back(std::move(menu));
    }
    return bar;
}

} // namespace quillon
