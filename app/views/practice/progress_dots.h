#pragma once

#include <quillon/app/core/practice_round.h>
#include <quillon/app/views/components/themed_widget.h>

#include <vector>

namespace quillon {

/// A round's questions as a row of dots: filled for right, a cross for missed, a ring for the present one.
/// Decoration: the same is said in words.
class ProgressDots : public ThemedWidget {
    Q_OBJECT

  public:
    explicit ProgressDots(ThemeSource& themes, QWidget* parent = nullptr);

    void show(const PracticeRound& round);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    enum class Dot { toCome, present, right, missed };

    std::vector<Dot> m_dots;
};

} // namespace quillon
