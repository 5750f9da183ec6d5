#include "scroll_pane.h"

#include "thin_scroll_bar.h"

#include <QPainter>
#include <QScrollBar>

namespace quillon {

namespace {

constexpr double ringWidth = 1.5;
constexpr double cornerRadius = 6;

} // namespace

/// The ring lies over what is scrolled, which would cover it.
class ScrollPane::Ring final : public QWidget {
  public:
    Ring(ThemeSource& themes, QWidget* parent) : QWidget(parent), m_themes(themes) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr double inside = ringWidth / 2;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_themes.theme().palette.focusRing, ringWidth));
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(inside, inside, -inside, -inside), cornerRadius, cornerRadius);
    }

  private:
    ThemeSource& m_themes;
};

ScrollPane::ScrollPane(ThemeSource& themes, QWidget* parent)
    : QScrollArea(parent), m_themes(themes), m_ring(new Ring(themes, this)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int highest) {
        setFocusPolicy(highest > 0 ? Qt::StrongFocus : Qt::NoFocus);
    });
    m_subscription = themes.changed.subscribe([this] { follow(); });
    follow();
}

void ScrollPane::follow() {
    makeThin(*verticalScrollBar(), m_themes.theme());
    m_ring->update();
}

void ScrollPane::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    m_ring->show();
    m_ring->raise();
}

void ScrollPane::focusOutEvent(QFocusEvent* event) {
    QScrollArea::focusOutEvent(event);
    m_ring->hide();
}

void ScrollPane::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    m_ring->setGeometry(rect());
}

} // namespace quillon
