#include <quillon/fuzz/support/byte_reader.h>
#include <quillon/fuzz/support/law.h>

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/kit/menu/shortcut_search.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace quillon {
namespace {

constexpr int deepest = 12;

/// One item: a byte of flags, the title, the fields that the flags name, the number of children and they.
/// fuzz/make_corpus writes the same.
RawMenuItem readItem(ByteReader& bytes, int depth) {
    RawMenuItem item;
    const std::uint8_t flags = bytes.byte();
    item.title = bytes.text();
    if (flags & 1)
        item.cmdChar = bytes.text();
    if (flags & 2)
        item.cmdModifiers = static_cast<std::int8_t>(bytes.byte());
    if (flags & 4)
        item.cmdGlyph = bytes.byte();
    if (flags & 8)
        item.cmdVirtualKey = static_cast<std::int8_t>(bytes.byte());
    item.enabled = (flags & 16) != 0;
    for (int left = bytes.byte(); left > 0 && depth < deepest && !bytes.isAtEnd(); --left)
        item.children.push_back(readItem(bytes, depth + 1));
    return item;
}

void checkEntry(const MenuEntry& entry, const KeyStroke& stroke) {
    QUILLON_LAW(entry.path.size() >= 2 && entry.path.size() <= 5);
    for (const std::string& title : entry.path)
        QUILLON_LAW(!title.empty() && unicode::isValid(title));
    QUILLON_LAW(entry.hasId(entry.id()));
    QUILLON_LAW(unicode::isValid(entry.shortcut.display()));
    QUILLON_LAW(!entry.shortcut.display().empty() && !entry.shortcut.spoken().empty());
    QUILLON_LAW(
        !stroke.matches(entry.shortcut)
        || stroke.modifiers.intersection(Modifiers(11))
               == entry.shortcut.modifiers.intersection(Modifiers(11)));
    if (const std::string* character = entry.shortcut.key.asCharacter())
        QUILLON_LAW(unicode::toUpper(*character) == *character);
}

void checkSearch(const std::vector<MenuEntry>& entries, const std::string& query, const Notes& notes) {
    const std::vector<MenuEntry> kept = ShortcutSearch::filter(entries, query, notes);
    std::vector<MenuEntry> indexed;
    for (const std::size_t position : SearchIndex(entries, notes).matches(query))
        indexed.push_back(entries.at(position));
    QUILLON_LAW(indexed == kept);
}

void checkGroups(const std::vector<MenuEntry>& entries) {
    std::size_t grouped = 0;
    std::set<std::string> menus;
    for (const MenuGroup& group : MenuGroup::group(entries)) {
        grouped += group.entries.size();
        QUILLON_LAW(menus.insert(group.menu).second);
    }
    QUILLON_LAW(grouped == entries.size());
}

void checkSheet(const AppSheet& sheet, const std::string& note) {
    const std::optional<std::string> written = Json::encode(sheet);
    QUILLON_LAW(written.has_value());
    QUILLON_LAW(Json::decode<AppSheet>(*written) == sheet);
    Annotations annotations;
    if (!sheet.entries.empty())
        annotations[sheet.entries.front().id()] = {.pinned = true, .note = note};
    const auto groups = CheatSheet::lines(sheet, annotations, CheatSheet::IncludeNotes::yes);
    for (const CheatSheet::Page& page : CheatSheet::paginate(groups, {.linesPerColumn = 4, .columns = 2})) {
        QUILLON_LAW(page.size() == 1 || page.size() == 2);
        for (const CheatSheet::Column& column : page)
            QUILLON_LAW(!column.empty() && column.size() <= 4);
    }
    QUILLON_LAW(CheatSheet::markdown(sheet, annotations).starts_with("# "));
}

} // namespace
} // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillon;
    ByteReader bytes(data, size);
    const std::string query = bytes.text();
    const std::string note = bytes.text();
    const KeyStroke stroke{bytes.text(), bytes.byte(), Modifiers(bytes.byte())};
    std::vector<RawMenuItem> menuBar;
    while (!bytes.isAtEnd())
        menuBar.push_back(readItem(bytes, 0));

    const std::vector<MenuEntry> entries = MenuParser::entries(menuBar, MenuParser::defaultMaxDepth);
    std::set<std::string> ids;
    Notes notes;
    for (const MenuEntry& entry : entries) {
        checkEntry(entry, stroke);
        QUILLON_LAW(ids.insert(entry.id()).second);
        if (ids.size() % 3 == 0)
            notes[entry.id()] = note;
    }
    checkSearch(entries, query, notes);
    checkGroups(entries);
    checkSheet({"app", "App", entries, Instant()}, note);
    SeededGenerator random(size);
    QUILLON_LAW(PracticeDeck::round(entries, {}, {}, 10, random).size() <= 10);
    return 0;
}
