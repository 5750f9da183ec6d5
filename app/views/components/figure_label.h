#pragma once

#include "themed_widget.h"

namespace quillon {

/// A short text with digits, all of them equally wide, so that it does not jump about while it changes. At
/// the trailing end of its field. Told by what it accompanies: screen readers pass over it.
class FigureLabel : public ThemedWidget {
    Q_OBJECT

  public:
    /// The field is `width` logical pixels wide, or as wide as `widest` needs.
    FigureLabel(ThemeSource& themes, int width, const QString& widest, QWidget* parent = nullptr);

    const QString& text() const { return m_text; }
    void setText(const QString& text);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_width;
    QString m_widest;
    QString m_text;
};

} // namespace quillon
