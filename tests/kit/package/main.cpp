#include <quillon/base/unicode.h>
#include <quillon/cheatsheet/cheat_sheet.h>
#include <quillon/coach/practice_deck.h>
#include <quillon/coach/seeded_generator.h>
#include <quillon/menu/sample_menus.h>
#include <quillon/records/json_file.h>
#include <quillon/records/sample_records.h>

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
