#include "floating_panel_window.h"

#include "rounded_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

#include <chrono>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr auto panelFlags = Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint
                            | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint;
constexpr double invisible = 0;
constexpr auto untouchable = Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus;

/// Long enough for a window manager to give the keyboard to the window that was pressed on.
constexpr std::chrono::milliseconds returnDelay{100};

Qt::WindowFlags flagsFor(const PanelTraits& traits) {
    return traits.input == PanelInput::passes ? panelFlags | untouchable : panelFlags;
}

} // namespace

FloatingPanelWindow::FloatingPanelWindow(PanelContent content, PanelWindows& windows)
    : QWidget(nullptr, flagsFor(content.traits)), m_windows(windows), m_content(std::move(content)),
      m_fade(this, "windowOpacity", this) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_content.widget.get());
    // On a small screen the content shrinks rather than hang over.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    m_compositing = windows.onCompositedChanged([this] { followCompositing(); });
    m_return.setSingleShot(true);
    m_return.setInterval(returnDelay);
    m_return.callOnTimeout(this, [this] { returnKeyboard(); });
    m_fade.setEasingCurve(QEasingCurve::InOutSine);
    connect(&m_fade, &QPropertyAnimation::finished, this, [this] {
        if (m_fade.endValue() == invisible)
            orderOut();
    });
    followCompositing();
}

/// The content may have other owners.
FloatingPanelWindow::~FloatingPanelWindow() {
    m_content.widget->setParent(nullptr);
}

int FloatingPanelWindow::shadowReach() const {
    return m_content.traits.hasShadow && m_windows.isComposited() ? PanelShadow::reach : 0;
}

void FloatingPanelWindow::followCompositing() {
    const int reach = shadowReach();
    layout()->setContentsMargins(reach, reach, reach, reach);
    setFrame(m_frame);
    applyShape();
    update();
}

void FloatingPanelWindow::setFrame(Rect frame) {
    m_frame = frame;
    const int reach = shadowReach();
    const QRect content = QRectF(frame.x, frame.y, frame.width, frame.height).toRect();
    setGeometry(content.adjusted(-reach, -reach, reach, reach));
}

void FloatingPanelWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    applyShape();
}

void FloatingPanelWindow::applyShape() {
    if (m_isPrepared)
        m_windows.setShape(static_cast<std::uintptr_t>(winId()), shape());
}

/// The panel without its shadow takes the pointer. What is not blended has to be cut to be round.
WindowShape FloatingPanelWindow::shape() const {
    const double ratio = devicePixelRatioF();
    const int reach = static_cast<int>(std::lround(shadowReach() * ratio));
    const QSize size = (QSizeF(this->size()) * ratio).toSize();
    const PixelBox panel{reach, reach, size.width() - 2 * reach, size.height() - 2 * reach};
    const auto boxes = roundedBoxes(panel, m_content.traits.cornerRadius * ratio);
    WindowShape shape;
    if (!m_windows.isComposited())
        shape.shown = boxes;
    if (m_content.traits.input == PanelInput::takes)
        shape.touchable = boxes;
    return shape;
}

void FloatingPanelWindow::prepare() {
    prepareWindow();
    if (m_content.prepare)
        m_content.prepare();
    grab();
}

void FloatingPanelWindow::prepareWindow() {
    if (m_isPrepared)
        return;
    m_isPrepared = true;
    m_windows.prepare(static_cast<std::uintptr_t>(winId()));
    windowHandle()->installEventFilter(this);
    applyShape();
}

void FloatingPanelWindow::orderFront() {
    showAtOpacity(1);
}

void FloatingPanelWindow::fadeIn(Seconds time) {
    if (!m_windows.isComposited()) {
        orderFront();
        return;
    }
    showAtOpacity(invisible);
    fadeTo(1, time);
}

void FloatingPanelWindow::fadeOut(Seconds time) {
    if (isVisible())
        fadeTo(invisible, time);
}

/// Where windows are not blended nobody sees the opacity, only that the window goes at the end.
void FloatingPanelWindow::fadeTo(double opacity, Seconds time) {
    m_fade.stop();
    m_fade.setStartValue(windowOpacity());
    m_fade.setEndValue(opacity);
    m_fade.setDuration(static_cast<int>(std::lround(time.count() * 1000)));
    m_fade.start();
}

void FloatingPanelWindow::showAtOpacity(double opacity) {
    m_fade.stop();
    setWindowOpacity(opacity);
    prepareWindow();
    if (m_return.isActive())
        returnKeyboard();
    show();
    raise();
}

void FloatingPanelWindow::makeKey() {
    if (m_keyboard != Keyboard::elsewhere)
        return;
    m_keyboard = Keyboard::wanted;
    // A press elsewhere closes the panel even where the desktop lets the focus stay.
    m_presses = m_windows.onPressElsewhere([this] { resign(); });
    if (windowHandle() && windowHandle()->isExposed())
        takeKeyboard();
}

void FloatingPanelWindow::takeKeyboard() {
    m_keyboard = isActiveWindow() ? Keyboard::here : Keyboard::asked;
    m_owesKeyboard = true;
    m_windows.takeKeyboard(static_cast<std::uintptr_t>(winId()));
}

void FloatingPanelWindow::orderOut() {
    m_fade.stop();
    const bool hasResigned = std::exchange(m_keyboard, Keyboard::elsewhere) == Keyboard::elsewhere;
    m_presses.reset();
    if (m_owesKeyboard && hasResigned)
        m_return.start();
    else
        returnKeyboard();
    if (isVisible())
        m_windows.takeAway(static_cast<std::uintptr_t>(winId()));
    hide();
}

void FloatingPanelWindow::returnKeyboard() {
    m_return.stop();
    if (std::exchange(m_owesKeyboard, false))
        m_windows.returnKeyboard(static_cast<std::uintptr_t>(winId()));
}

/// While a menu of ours is open, what to make of it shows when the menu closes.
void FloatingPanelWindow::loseKeyboard() {
    if (QWidget* menu = QApplication::activePopupWidget())
        menu->installEventFilter(this);
    else if (m_keyboard == Keyboard::here && !isActiveWindow())
        resign();
}

void FloatingPanelWindow::resign() {
    const bool ownMenuIsOpen = QApplication::activePopupWidget() != nullptr;
    if (m_keyboard == Keyboard::elsewhere || ownMenuIsOpen)
        return;
    m_keyboard = Keyboard::elsewhere;
    m_presses.reset();
    if (onResign)
        onResign();
}

bool FloatingPanelWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool isOnScreen = event->type() == QEvent::Expose && windowHandle() && windowHandle()->isExposed();
    if (isOnScreen && m_keyboard == Keyboard::wanted)
        takeKeyboard();
    if (event->type() == QEvent::Hide && watched != windowHandle())
        QTimer::singleShot(0, this, [this] { loseKeyboard(); });
    return QWidget::eventFilter(watched, event);
}

bool FloatingPanelWindow::event(QEvent* event) {
    const bool result = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && m_keyboard == Keyboard::asked)
        m_keyboard = Keyboard::here;
    else if (event->type() == QEvent::WindowDeactivate && m_keyboard == Keyboard::here)
        loseKeyboard();
    return result;
}

void FloatingPanelWindow::keyPressEvent(QKeyEvent* event) {
    // Whatever else is held: a modifier may be locked.
    if (event->key() == Qt::Key_Escape && onEscape)
        onEscape();
    else
        QWidget::keyPressEvent(event);
}

void FloatingPanelWindow::mousePressEvent(QMouseEvent* event) {
    if (!m_content.widget->geometry().contains(event->position().toPoint()))
        resign();
}

void FloatingPanelWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // Under the softened pixels of the content's edge, where nothing else shines through.
    if (!m_windows.isComposited())
        painter.fillRect(rect(), palette().color(QPalette::Mid));
    else if (m_content.traits.hasShadow)
        m_shadow.paint(
            painter, m_content.widget->geometry(), m_content.traits.cornerRadius,
            palette().color(QPalette::Shadow));
}

} // namespace quillon
