#include "welcome_view.h"

#include "welcome_steps.h"
#include "welcome_texts.h"

#include <quillon/app/views/components/content_height.h>
#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

constexpr int footerPadding = 20;
constexpr int buttonGap = 8;
constexpr int lowest = 240;

/// As wide as lines are read easily, in any size of the font.
int readableWidth(const Theme& theme) {
    constexpr double ems = 43;
    return std::max(560, static_cast<int>(std::lround(ems * pixelSize(theme.styles.body))));
}

} // namespace

WelcomeView::WelcomeView(
    AppModel& model, ThemeSource& themeSource, const WelcomeNeeds& needs, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_steps(new WelcomeSteps(model, themeSource, needs)),
      m_scroll(new ScrollPane(themeSource, this)), m_footer(makeFooter()) {
    m_scroll->setWidget(m_steps);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scroll, 1);
    column->addWidget(m_footer);
    connect(m_steps, &WelcomeSteps::keyboardLost, m_done, [this] { m_done->setFocus(); });
    // Once the layouts know of it.
    connect(m_steps, &WelcomeSteps::partsChanged, this, [this] {
        QTimer::singleShot(0, this, &WelcomeView::makeRoom);
    });
    themeChanged();
}

QWidget* WelcomeView::makeFooter() {
    auto* footer = new QWidget(this);
    auto* buttons = new QHBoxLayout(footer);
    constexpr int margin = footerPadding - focusRingRoom;
    buttons->setContentsMargins(margin, margin, margin, margin);
    buttons->setSpacing(buttonGap);
    m_later = new PlainButton(themes(), WelcomeTexts::later(), footer);
    m_done = new ProminentButton(themes(), WelcomeTexts::done(), footer);
    buttons->addStretch(1);
    buttons->addWidget(m_later);
    buttons->addWidget(m_done);
    connect(m_later, &QPushButton::clicked, this, &WelcomeView::close);
    connect(m_done, &QPushButton::clicked, this, &WelcomeView::finish);
    return footer;
}

void WelcomeView::showEvent(QShowEvent* event) {
    ThemedWidget::showEvent(event);
    QWidget* const ask = m_steps->askButton();
    (ask ? ask : m_done)->setFocus();
}

void WelcomeView::finish() {
    m_model.setOnboarded(true);
    close();
}

void WelcomeView::close() {
    window()->close();
}

/// What came into view while the window is open makes it taller, as far as the screen has the room.
void WelcomeView::makeRoom() {
    const int hidden =
        m_steps->heightForWidth(m_scroll->viewport()->width()) - m_scroll->viewport()->height();
    if (hidden <= 0 || !isVisible())
        return;
    const QRect room = screen()->availableGeometry();
    const QRect frame = window()->frameGeometry();
    const int below = std::max(0, room.bottom() - frame.bottom());
    const int above = std::max(0, frame.top() - room.top());
    const int taller = std::min(hidden, below + above);
    QWidget* const shown = window();
    if (taller > below)
        shown->move(shown->x(), shown->y() - (taller - below));
    shown->resize(shown->width(), shown->height() + taller);
}

QSize WelcomeView::sizeHint() const {
    const int width = readableWidth(theme());
    return {
        std::max(width, minimumSizeHint().width()),
        contentHeight(*m_steps, width) + m_footer->sizeHint().height()};
}

QSize WelcomeView::minimumSizeHint() const {
    return {m_steps->minimumSizeHint().width() + thinScrollBarWidth, lowest};
}

void WelcomeView::themeChanged() {
    updateGeometry();
    ThemedWidget::themeChanged();
}

/// A line parts the footer from what is scrolled above it.
void WelcomeView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, m_footer->y(), width(), 1, theme().palette.divider);
}

} // namespace quillon
