#include <quillon/app/core/app_model.h>
#include <quillon/app/platform/fake/fake_panel_host.h>
#include <quillon/bench/kit/made_up_menus.h>
#include <quillon/kit/records/json_file.h>
#include <quillon/kit/records/learned_files.h>
#include <quillon/tests/app/core/support/model_services.h>

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

namespace quillon {
namespace {

namespace fs = std::filesystem;

/// What was learned before.
struct Learned {
    int applications;
    int entriesEach; ///< of which every tenth was used, and every hundredth is pinned
};

/// A model with such a past, over a folder of its own.
class Past {
  public:
    explicit Past(Learned learned) {
        const SheetMap sheets = madeUpSheets(learned.applications, learned.entriesEach);
        UsageBook usage;
        AnnotationBook annotations;
        for (const auto& [bundleID, sheet] : sheets) {
            for (std::size_t i = 0; i < sheet.entries.size(); i += 10)
                usage.click(bundleID, sheet.entries[i].id(), distantPast);
            for (std::size_t i = 0; i < sheet.entries.size(); i += 100)
                annotations.togglePin(bundleID, sheet.entries[i].id());
        }
        m_isMade = !JSONFile<SheetMap>(m_data / LearnedFiles::menus).save(sheets)
                   && !JSONFile<UsageBook>(m_data / LearnedFiles::usage).save(usage)
                   && !JSONFile<AnnotationBook>(m_data / LearnedFiles::notes).save(annotations);
        const AppSheet& front = sheets.begin()->second;
        m_app = {10, front.bundleID, front.appName, {}};
        m_desktop.menus.answer(m_app.bundleID, {madeUpMenuBar(learned.entriesEach), ReadOutcome::complete});
        m_desktop.access.setTrusted(true);
        m_desktop.front.setCurrent(m_app);
        AppServices services = servicesOf(m_desktop, m_panels, m_settings);
        services.dataFolder = m_data;
        m_model.emplace(std::move(services));
        m_model->start();
        endSaving();
    }
    bool isMade() const { return m_isMade; }
    /// A shortcut is typed, and where `isRead`, the menus of the application were read again.
    void change(bool isRead) {
        if (isRead) {
            m_desktop.front.activate(m_app);
            m_desktop.background.runAll();
        }
        m_model->handleTyped(m_model->current()->entries.front());
    }
    /// A second later.
    void passSecond() { m_desktop.timers.advance(Seconds(1)); }
    /// What is done beside the main thread.
    void workInBackground() { m_desktop.background.runAll(); }

  private:
    void endSaving() {
        m_desktop.background.runAll();
        passSecond();
        m_desktop.background.runAll();
    }

    bool m_isMade = false;
    RunningApp m_app;
    QTemporaryDir m_folder;
    fs::path m_data = fs::path(m_folder.path().toStdString()) / "data";
    Settings m_settings{m_folder.filePath(QStringLiteral("settings.ini"))};
    FakeDesktop m_desktop;
    FakePanelHost m_panels;
    std::optional<AppModel> m_model;
};

/// What a save takes of the main thread's time, on average and at worst.
void saveOnMainThread(benchmark::State& state, Learned learned, bool areMenusRead) {
    using Clock = std::chrono::steady_clock;
    Past past(learned);
    if (!past.isMade())
        return state.SkipWithError("the files could not be saved");
    Clock::duration longest{};
    for ([[maybe_unused]] auto _ : state) {
        past.change(areMenusRead);
        const Clock::time_point begin = Clock::now();
        past.passSecond();
        const Clock::duration taken = Clock::now() - begin;
        longest = std::max(longest, taken);
        state.SetIterationTime(std::chrono::duration<double>(taken).count());
        past.workInBackground();
    }
    state.counters["longest ms"] = std::chrono::duration<double, std::milli>(longest).count();
}

constexpr Learned ordinary{12, 150};
constexpr Learned most{200, 300};

void configure(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(200);
}

BENCHMARK_CAPTURE(saveOnMainThread, ordinaryCounts, ordinary, false)->Apply(configure);
BENCHMARK_CAPTURE(saveOnMainThread, ordinaryMenus, ordinary, true)->Apply(configure);
BENCHMARK_CAPTURE(saveOnMainThread, mostCounts, most, false)->Apply(configure);
BENCHMARK_CAPTURE(saveOnMainThread, mostMenus, most, true)->Apply(configure);

} // namespace
} // namespace quillon
