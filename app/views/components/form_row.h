#pragma once

#include "focus_ring.h"
#include "themed_label.h"

#include <QWidget>

class QVBoxLayout;

namespace quillon {

/// One row of a form: its label at the leading side, what is to be set at the trailing side, and below them
/// what is to be said about it. A press on the label of a button presses the button.
class FormRow : public QWidget {
    Q_OBJECT

  public:
    /// `control` becomes the row's. The label is its name to screen readers. A control without a layout has
    /// room for its focus ring around it; in one of several parts what ends without a ring keeps
    /// `focusRingRoom`.
    FormRow(ThemeSource& themes, const QString& label, QWidget* control, QWidget* parent = nullptr);

    /// A row that is nothing but text.
    static FormRow* ofText(ThemeSource& themes, const QString& text, QWidget* parent);

    /// Appends a line in the secondary colour, wrapped where it does not fit.
    ThemedLabel* addNote(const QString& text);
    /// Appends something below, as wide as the row; it becomes the row's.
    void addBelow(QWidget* widget);

    /// At both ends of a row, in logical pixels.
    static constexpr int sidePadding = 14;

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    FormRow(ThemeSource& themes, QWidget* parent);
    ThemedLabel* makeText(const QString& text, QColor Palette::*colour);

    ThemeSource& m_themes;
    QVBoxLayout* m_column;
    QWidget* m_control = nullptr;
};

} // namespace quillon
