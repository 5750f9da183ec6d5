#include "made_up_menus.h"

#include <quillon/kit/records/json_file.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace quillon {
namespace {

constexpr int applications = 200;
constexpr int entriesEach = 300;

/// A file in a folder of its own, both gone at the end.
class OwnFile {
  public:
    OwnFile() {
        std::string name = (std::filesystem::temp_directory_path() / "quillon-bench.XXXXXX").string();
        if (::mkdtemp(name.data()))
            m_folder = name;
    }
    OwnFile(const OwnFile&) = delete;
    OwnFile& operator=(const OwnFile&) = delete;
    ~OwnFile() { std::filesystem::remove_all(m_folder); }

    JSONFile<SheetMap> sheets() const { return JSONFile<SheetMap>(m_folder / "menus.json"); }

  private:
    std::filesystem::path m_folder;
};

void loadSheets(benchmark::State& state) {
    const OwnFile file;
    if (file.sheets().save(madeUpSheets(applications, entriesEach)))
        state.SkipWithError("the file could not be saved");
    for ([[maybe_unused]] auto _ : state) {
        if (!file.sheets().load())
            state.SkipWithError("the file could not be loaded");
    }
    state.counters["MiB"] = static_cast<double>(std::filesystem::file_size(file.sheets().url())) / (1 << 20);
}
BENCHMARK(loadSheets)->Unit(benchmark::kMillisecond);

void encodeSheets(benchmark::State& state) {
    const SheetMap sheets = madeUpSheets(applications, entriesEach);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Json::encode(sheets));
}
BENCHMARK(encodeSheets)->Unit(benchmark::kMillisecond);

/// Encoding, writing, flushing to the disk and renaming.
void saveSheets(benchmark::State& state) {
    const OwnFile file;
    const SheetMap sheets = madeUpSheets(applications, entriesEach);
    for ([[maybe_unused]] auto _ : state) {
        if (file.sheets().save(sheets))
            state.SkipWithError("the file could not be saved");
    }
}
BENCHMARK(saveSheets)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace quillon
