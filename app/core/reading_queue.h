#pragma once

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/menu_reader.h>
#include <quillon/app/ports/running_app.h>
#include <quillon/kit/menu/app_sheet.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// Reads applications' menus in the background. One reading of an application is under way at a time; another
/// that is asked for meanwhile, of other windows, follows it. However fast it is asked, it keeps no more than
/// its limits of readings.
class ReadingQueue {
  public:
    /// A few less than there are threads, so that other work need not wait for applications that do not
    /// answer; more would only wait elsewhere.
    static constexpr std::size_t mostUnderWay = 6;
    /// More applications than anyone goes through while six of them do not answer. The one that was asked for
    /// first is dropped first; it is asked for again when it comes to the front.
    static constexpr std::size_t mostWaiting = 16;

    /// All of them outlive the queue.
    ReadingQueue(MenuReader& reader, Background& background, const Clock& clock)
        : m_reader(reader), m_background(background), m_clock(clock) {}
    ReadingQueue(const ReadingQueue&) = delete;
    ReadingQueue& operator=(const ReadingQueue&) = delete;

    /// A reading has ended, and what follows it has begun. The sheet is empty when nothing was read.
    std::function<void(const RunningApp& app, AppSheet sheet, ReadOutcome outcome)> onRead;

    void read(const RunningApp& app);

    /// Whether the application's menus are being read or wait for it.
    bool isReading(std::string_view bundleID) const;
    bool isIdle() const { return m_underWay.empty() && m_waiting.empty(); }

  private:
    struct Reading {
        RunningApp app;
        std::optional<RunningApp> next; ///< what is to be read when it has ended
        Subscription job;
    };

    void wait(const RunningApp& app);
    void start(const RunningApp& app);
    void ended(const RunningApp& app);

    MenuReader& m_reader;
    Background& m_background;
    const Clock& m_clock;
    std::vector<Reading> m_underWay;
    std::vector<RunningApp> m_waiting; ///< the one that was asked for last at the end
};

} // namespace quillon
