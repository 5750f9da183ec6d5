#include "made_up_menus.h"

#include <quillon/kit/menu/menu_parser.h>
#include <quillon/kit/menu/shortcut_search.h>

#include <benchmark/benchmark.h>

namespace quillon {
namespace {

constexpr int manyItems = 4000;

void parseMenus(benchmark::State& state) {
    const std::vector<RawMenuItem> bar = madeUpMenuBar(manyItems);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(MenuParser::entries(bar, MenuParser::defaultMaxDepth));
    state.counters["entries"] = static_cast<double>(MenuParser::entries(bar, 4).size());
}
BENCHMARK(parseMenus)->Unit(benchmark::kMillisecond);

Notes someNotes(const std::vector<MenuEntry>& entries) {
    Notes notes;
    for (std::size_t i = 0; i < entries.size(); i += 50)
        notes[entries[i].id()] = "Something to remember it by";
    return notes;
}

/// A word, two words, a shortcut, and the first letter that is typed.
constexpr const char* queries[] = {"paste", "front menu", "cmd shift s", "s"};

void filterEntries(benchmark::State& state) {
    const std::vector<MenuEntry> entries = madeUpEntries(manyItems);
    const Notes notes = someNotes(entries);
    const char* const query = queries[state.range(0)];
    state.SetLabel(query);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ShortcutSearch::filter(entries, query, notes));
}
BENCHMARK(filterEntries)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void buildSearchIndex(benchmark::State& state) {
    const std::vector<MenuEntry> entries = madeUpEntries(manyItems);
    const Notes notes = someNotes(entries);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(SearchIndex(entries, notes));
}
BENCHMARK(buildSearchIndex)->Unit(benchmark::kMillisecond);

void matchSearchIndex(benchmark::State& state) {
    const std::vector<MenuEntry> entries = madeUpEntries(manyItems);
    const SearchIndex index(entries, someNotes(entries));
    const char* const query = queries[state.range(0)];
    state.SetLabel(query);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(index.matches(query));
}
BENCHMARK(matchSearchIndex)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

/// The same with names of keys, as the program searches.
void buildSearchIndexWithNames(benchmark::State& state) {
    const std::vector<MenuEntry> entries = madeUpEntries(manyItems);
    const Notes notes = someNotes(entries);
    const KeyWords words(std::vector{KeyNames::english()});
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(SearchIndex(entries, notes, words));
}
BENCHMARK(buildSearchIndexWithNames)->Unit(benchmark::kMillisecond);

void matchSearchIndexWithNames(benchmark::State& state) {
    const std::vector<MenuEntry> entries = madeUpEntries(manyItems);
    const SearchIndex index(entries, someNotes(entries), KeyWords(std::vector{KeyNames::english()}));
    const char* const query = queries[state.range(0)];
    state.SetLabel(query);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(index.matches(query));
}
BENCHMARK(matchSearchIndexWithNames)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon
