#pragma once

#include "rounded_background.h"
#include "themed_widget.h"

class QVBoxLayout;

namespace quillon {

/// Rows of a form that belong together, one below the other on one rounded ground, parted by lines.
class FormGroup : public ThemedWidget {
    Q_OBJECT

  public:
    explicit FormGroup(ThemeSource& themes, QWidget* parent = nullptr);

    /// Appends a row, which becomes the group's.
    void addRow(QWidget* row);

    static constexpr double cornerRadius = 10;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* m_rows;
    RoundedBackground m_background{cornerRadius};
};

} // namespace quillon
