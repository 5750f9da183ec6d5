#pragma once

#include <QObject>
#include <QWidget>

namespace quillon {

/// Waits until a widget has been painted and the frame is on the screen.
class FrameWatch : public QObject {
    Q_OBJECT

  public:
    /// Watches whatever is painted in the program.
    FrameWatch();

    /// Forgets the frames so far.
    void reset() { m_painted = false; }
    /// Runs the event loop until a widget called `name` was painted, the frame was handed to the X server and
    /// the server has dealt with it. False when that takes longer than two seconds.
    bool wait(const char* className);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const char* m_className = nullptr;
    bool m_painted = false;
};

/// Returns when the X server has dealt with everything so far; at once without one.
void awaitServer();

} // namespace quillon
