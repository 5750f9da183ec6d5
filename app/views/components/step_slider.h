#pragma once

#include "theme_source.h"

#include <QSlider>

#include <functional>

namespace quillon {

/// Where a slider can stand: at the tenths from `first` to `last`.
struct SliderTenths {
    int first = 0;
    int last = 10;
};

/// A slider for a number that is chosen in tenths. A number that it could not give itself, between two steps
/// or outside of its range, is shown where it is or at the nearer end, and stays until the user moves the
/// slider.
class StepSlider : public QSlider {
    Q_OBJECT

  public:
    using Wording = std::function<QString(double number)>;

    /// `wording` is how a number is told, with its unit.
    StepSlider(ThemeSource& themes, SliderTenths tenths, Wording wording, QWidget* parent = nullptr);

    double number() const { return m_number; }
    /// Shows a number; tells nobody.
    void setNumber(double number);
    /// The number in words.
    QString wording() const { return m_wording(m_number); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  Q_SIGNALS:
    /// The user chose another number.
    void chosen(double number);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void stepFrom(int action);
    void choose(double number);
    void tellReaders();
    double handleX() const;
    int tenthsAt(double x) const;
    QRectF groove() const;

    ThemeSource& m_themes;
    Wording m_wording;
    double m_number = 0;
    double m_grip = 0; ///< from the handle's middle to where it was taken hold of
    Subscription m_subscription;
};

} // namespace quillon
