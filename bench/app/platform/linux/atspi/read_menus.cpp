// The menus of a running application, read by this program's reader.
//
//     quillon-read-menus PID [--dump | --repeat]
//
// Prints the number of items and the milliseconds that everything took, from no connection to the finished
// tree. With --dump also one line for each command that has a shortcut: shortcut, whether it is enabled,
// path. With --repeat also how long the application needs to answer the same requests when nothing waits for
// them.

#include "captured_calls.h"

#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/kit/menu/menu_parser.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using namespace quillon;

std::size_t count(const std::vector<RawMenuItem>& items) {
    std::size_t sum = items.size();
    for (const RawMenuItem& item : items)
        sum += count(item.children);
    return sum;
}

void dump(const std::vector<RawMenuItem>& menuBar) {
    for (const MenuEntry& entry : MenuParser::entries(menuBar, MenuParser::defaultMaxDepth))
        std::printf("%s\t%d\t%s\n", entry.shortcut.display().c_str(), entry.enabled, entry.id().c_str());
}

void repeat(const RunningApp& app) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    const auto address = atspi::accessibilityBusAddress({}, deadline, {});
    if (!address)
        return;
    const CapturedCalls calls = CapturedCalls::during(
        *address, static_cast<long>(app.pid), [&app] { AtspiMenuReader().readMenus(app, {}); });
    std::printf("calls %zu repeated %.3f\n", calls.size(), calls.repeat(*address).count());
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: quillon-read-menus PID [--dump | --repeat]\n");
        return 2;
    }
    const std::string_view option = argc > 2 ? argv[2] : "";
    RunningApp app;
    app.pid = std::strtol(argv[1], nullptr, 10);
    const auto start = std::chrono::steady_clock::now();
    const MenuReading reading = AtspiMenuReader().readMenus(app, {});
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    if (option == "--dump")
        dump(reading.menuBar);
    const bool isComplete = reading.outcome == ReadOutcome::complete;
    std::printf(
        "items %zu total %.3f%s\n", count(reading.menuBar), took.count(), isComplete ? "" : " INCOMPLETE");
    if (option == "--repeat")
        repeat(app);
    return isComplete ? 0 : 1;
}
