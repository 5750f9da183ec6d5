#include "reading_queue.h"

#include <quillon/kit/menu/menu_parser.h>

#include <algorithm>
#include <utility>

namespace quillon {

void ReadingQueue::read(const RunningApp& app) {
    const auto underWay = std::ranges::find_if(
        m_underWay, [&app](const Reading& reading) { return isSameApp(reading.app, app); });
    if (underWay == m_underWay.end())
        wait(app);
    else if (underWay->app == app)
        underWay->next.reset();
    else
        underWay->next = app;
}

bool ReadingQueue::isReading(std::string_view bundleID) const {
    const auto isOfIt = [bundleID](const RunningApp& app) { return app.bundleID == bundleID; };
    return std::ranges::any_of(m_underWay, isOfIt, &Reading::app) || std::ranges::any_of(m_waiting, isOfIt);
}

// The application that was asked for last is read first: it is the one in front.
void ReadingQueue::wait(const RunningApp& app) {
    std::erase_if(m_waiting, [&app](const RunningApp& other) { return isSameApp(other, app); });
    if (m_underWay.size() < mostUnderWay)
        return start(app);
    if (m_waiting.size() == mostWaiting)
        m_waiting.erase(m_waiting.begin());
    m_waiting.push_back(app);
}

void ReadingQueue::start(const RunningApp& app) {
    m_underWay.push_back({app, std::nullopt, {}});
    m_underWay.back().job =
        m_background.run([this, app, &reader = m_reader, &clock = m_clock](std::stop_token stop) {
            const MenuReading reading = reader.readMenus(app, std::move(stop));
            AppSheet sheet{
                app.bundleID, app.name, MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth),
                clock.now()};
            return [this, app, outcome = reading.outcome, sheet = std::move(sheet)]() mutable {
                ended(app);
                if (onRead)
                    onRead(app, std::move(sheet), outcome);
            };
        });
}

void ReadingQueue::ended(const RunningApp& app) {
    const auto reading = std::ranges::find(m_underWay, app, &Reading::app);
    const std::optional<RunningApp> next = std::move(reading->next);
    m_underWay.erase(reading);
    if (next) {
        start(*next);
    } else if (!m_waiting.empty()) {
        const RunningApp waiting = std::move(m_waiting.back());
        m_waiting.pop_back();
        start(waiting);
    }
}

} // namespace quillon
