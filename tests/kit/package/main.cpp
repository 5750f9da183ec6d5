#include <quillon/kit/base/unicode.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/sample_records.h>

#include <cstdio>
#include <string>
#include <tuple>
#include <vector>

/// A type of this program's own, which the kit stores for it.
struct Favourite {
    std::string application;
    std::vector<quillon::MenuEntry> entries;

    bool operator==(const Favourite&) const = default;
};

template <>
struct quillon::Json::Form<Favourite> {
    static constexpr auto members =
        std::tuple(member("application", &Favourite::application), member("entries", &Favourite::entries));
};

namespace {

using namespace quillon;

/// Whether every module does what it is for.
bool usesTheKit() {
    const AppSheet& sheet = SampleMenus::sheet();
    SeededGenerator random(1);
    const auto round = PracticeDeck::round(sheet.entries, SampleMenus::usage(), {}, 10, random);
    const auto groups = CheatSheet::lines(sheet, SampleMenus::annotations(), CheatSheet::IncludeNotes::yes);
    const bool absent = !JSONFile<UsageBook>("/nowhere/usage.json").load();
    return unicode::toUpper("ß") == "SS" && round.size() == 10 && groups.size() == 9 && absent;
}

bool storesItsOwn(const std::string& path) {
    const JSONFile<Favourite> file(path);
    const Favourite favourite{"Sketchpad", {SampleMenus::sheet().entries.front()}};
    if (const auto failure = file.save(favourite)) {
        std::puts(failure->message().c_str());
        return false;
    }
    return file.load() == favourite;
}

} // namespace

int main(int count, char** arguments) {
    return count == 2 && usesTheKit() && storesItsOwn(arguments[1]) ? 0 : 1;
}
