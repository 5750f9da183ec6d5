#include "frame_times.h"

#include <QTextStream>

#include <algorithm>
#include <cstddef>

namespace quillon {

namespace {

double quantile(const std::vector<MaybeFrame>& frames, double FrameTime::*part, std::size_t percent) {
    std::vector<double> values;
    for (const MaybeFrame& frame : frames)
        values.push_back((*frame).*part);
    std::ranges::sort(values);
    return values[(values.size() - 1) * percent / 100];
}

} // namespace

FrameTimer::FrameTimer() : m_processor(std::clock()) {
    m_wall.start();
}

FrameTime FrameTimer::elapsed() const {
    return {
        static_cast<double>(m_wall.nsecsElapsed()) / 1e6,
        static_cast<double>(std::clock() - m_processor) * 1000.0 / CLOCKS_PER_SEC};
}

bool reportFrames(const QString& what, const std::vector<MaybeFrame>& frames, double budget) {
    QTextStream out(stdout);
    out << qSetFieldWidth(48) << Qt::left << what << qSetFieldWidth(0);
    if (std::ranges::any_of(frames, [](const MaybeFrame& frame) { return !frame; })) {
        out << "no frame" << Qt::endl;
        return false;
    }
    const double median = quantile(frames, &FrameTime::wall, 50);
    out << QString::asprintf(
        "median %6.2f ms   95 %% %6.2f ms   processor %6.2f ms   budget %.0f ms", median,
        quantile(frames, &FrameTime::wall, 95), quantile(frames, &FrameTime::processor, 50), budget)
        << Qt::endl;
    return median <= budget;
}

} // namespace quillon
