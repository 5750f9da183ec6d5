#pragma once

#include "theme_source.h"

#include <QScrollArea>

namespace quillon {

/// What may be higher than its room, scrolled up and down with a thin bar. The keyboard comes to it while
/// there is something to scroll, and then a ring shows it.
class ScrollPane : public QScrollArea {
    Q_OBJECT

  public:
    explicit ScrollPane(ThemeSource& themes, QWidget* parent = nullptr);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Ring;

    void follow();

    ThemeSource& m_themes;
    Ring* m_ring;
    Subscription m_subscription;
};

} // namespace quillon
