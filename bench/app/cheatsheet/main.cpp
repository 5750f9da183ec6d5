#include <quillon/app/cheatsheet/pdf_document.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>

#include <benchmark/benchmark.h>

#include <QGuiApplication>

namespace {

using namespace quillon;

/// From a sheet and its notes to the bytes of the document.
void document(benchmark::State& state) {
    const AnnotatedSheet many = manyEntries(static_cast<std::size_t>(state.range(0)));
    qsizetype bytes = 0;
    for (auto _ : state) {
        const auto made = pdfDocument(
            PrintedSheet::of({many.sheet, many.annotations}), QStringLiteral("Atelier Shortcuts"));
        bytes = made ? made->size() : 0;
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

BENCHMARK(document)->Arg(60)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
