#include "logged_menu_reader.h"

#include "logged_app.h"

#include <quillon/app/ports/diagnostics/log.h>

#include <chrono>
#include <utility>

namespace quillon {

namespace {

const char* nameOf(ReadOutcome outcome) {
    switch (outcome) {
    case ReadOutcome::complete: return "complete";
    case ReadOutcome::limited: return "cut off at the limits";
    case ReadOutcome::partial: return "it stopped answering";
    case ReadOutcome::noMenuBar: return "it has no menu bar";
    case ReadOutcome::noSuchApp: return "it is not on the accessibility bus";
    case ReadOutcome::unavailable: return "the accessibility bus cannot be reached";
    }
    return "";
}

std::size_t count(const std::vector<RawMenuItem>& items) {
    std::size_t sum = items.size();
    for (const RawMenuItem& item : items)
        sum += count(item.children);
    return sum;
}

} // namespace

MenuReading LoggedMenuReader::readMenus(const RunningApp& app, std::stop_token stop) {
    const auto begin = std::chrono::steady_clock::now();
    MenuReading reading = m_reader.readMenus(app, std::move(stop));
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    qCInfo(logMenus).noquote().nospace() << "read " << logged(app) << ": " << nameOf(reading.outcome) << ", "
                                         << count(reading.menuBar) << " items in " << took.count() << " ms";
    return reading;
}

} // namespace quillon
