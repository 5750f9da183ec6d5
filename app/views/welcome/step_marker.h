#pragma once

#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// The number of a step, or a check mark once the step is done. Read as "Step 1" or "Step 1, done".
class StepMarker : public ThemedWidget {
    Q_OBJECT

  public:
    /// The edge of its square, in logical pixels.
    static constexpr int size = 30;

    StepMarker(ThemeSource& themes, int number, QWidget* parent = nullptr);

    bool isDone() const { return m_isDone; }
    void setDone(bool done);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void nameIt();

    int m_number;
    bool m_isDone = false;
};

} // namespace quillon
