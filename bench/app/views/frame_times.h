#pragma once

#include <QElapsedTimer>
#include <QString>

#include <ctime>
#include <optional>
#include <vector>

namespace quillon {

/// What one frame took, in milliseconds.
struct FrameTime {
    double wall = 0;
    double processor =
        0; ///< of this program, all its threads; what is left on a machine that is busy otherwise
};

/// Times from its making on.
class FrameTimer {
  public:
    FrameTimer();

    FrameTime elapsed() const;

  private:
    QElapsedTimer m_wall;
    std::clock_t m_processor;
};

/// Absent for a frame that never came.
using MaybeFrame = std::optional<FrameTime>;

/// Prints one line of the report; false when the median is over the budget, in milliseconds, or a frame never
/// came.
bool reportFrames(const QString& what, const std::vector<MaybeFrame>& frames, double budget);

} // namespace quillon
