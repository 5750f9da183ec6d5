#include <quillon/kit/base/unicode.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/sample_records.h>

/// Uses every module once; 0 when all is well.
int main() {
    using namespace quillon;
    const AppSheet& sheet = SampleMenus::sheet();
    SeededGenerator random(1);
    const auto round = PracticeDeck::round(sheet.entries, SampleMenus::usage(), {}, 10, random);
    const auto groups = CheatSheet::lines(sheet, SampleMenus::annotations(), CheatSheet::IncludeNotes::yes);
    const bool absent = !JSONFile<UsageBook>("/nowhere/usage.json").load();
    return unicode::toUpper("ß") == "SS" && round.size() == 10 && groups.size() == 9 && absent ? 0 : 1;
}
