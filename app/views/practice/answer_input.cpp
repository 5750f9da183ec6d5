#include "answer_input.h"

#include "answers.h"

#include <QApplication>

#include <utility>

namespace quillon {

namespace {

constexpr Seconds letGoAfter{1};
constexpr Seconds absentAfter{30};

HardwarePress hardwarePress(const QKeyEvent& event) {
    return {.key = event.nativeScanCode(), .state = event.nativeModifiers()};
}

bool isPlainEscape(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier;
}

bool isPopup(const QObject* object) {
    const auto* const widget = qobject_cast<const QWidget*>(object);
    return widget && widget->isWindow() && widget->windowType() == Qt::Popup;
}

} // namespace

AnswerInput::AnswerInput(QWidget& view, Needs needs) : m_view(view), m_needs(needs) {}

AnswerInput::~AnswerInput() = default;

void AnswerInput::start() {
    if (std::exchange(m_isListening, true))
        return;
    qApp->installEventFilter(this);
    m_reading = m_needs.keys.follow([this] { Q_EMIT keysChanged(); });
    follow();
}

void AnswerInput::stop() {
    if (!std::exchange(m_isListening, false))
        return;
    qApp->removeEventFilter(this);
    windowLeft();
    m_reading.reset();
}

void AnswerInput::setQuestion(Question question) {
    m_question = question;
    m_isResting = false;
    m_escape.reset();
    follow();
}

void AnswerInput::beginRound() {
    setGrip(m_isTaken, false);
    follow();
}

Grip AnswerInput::grip() const {
    return m_isLetGo ? Grip::letGo : m_isTaken ? Grip::allKeys : Grip::someKeys;
}

/// Takes the keyboard, or gives it back, as it is due now.
void AnswerInput::follow() {
    const bool isDue = m_isListening && (m_question == Question::waiting || m_answeringKey) && !m_isLetGo
                       && !m_isResting && m_view.window()->isActiveWindow()
                       && !QApplication::activePopupWidget();
    if (!isDue) {
        m_grab.reset();
        setGrip(false, m_isLetGo);
    } else if (!m_grab) {
        m_grab = m_needs.grab.take(m_view.window()->winId(), [this] {
            setGrip(true, m_isLetGo);
            stirred();
        });
    }
}

/// Somebody is there.
void AnswerInput::stirred() {
    if (std::exchange(m_isResting, false))
        follow();
    if (!m_isTaken)
        return;
    m_absence = m_needs.timers.after(absentAfter, [this] {
        m_isResting = true;
        follow();
    });
}

void AnswerInput::setGrip(bool isTaken, bool isLetGo) {
    const Grip before = grip();
    m_isTaken = isTaken;
    m_isLetGo = isLetGo;
    if (grip() != before)
        Q_EMIT gripChanged();
}

/// Presses go to whatever has the keyboard in the window, and shortcuts before them: both are too late.
bool AnswerInput::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::WindowActivate:
        if (watched == m_view.window())
            follow();
        return false;
    case QEvent::WindowDeactivate:
        if (watched == m_view.window())
            windowLeft();
        return false;
    case QEvent::Show:
    case QEvent::Hide:
        if (isPopup(watched))
            QMetaObject::invokeMethod(this, &AnswerInput::popupCameOrWent, Qt::QueuedConnection);
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::Enter: stirred(); return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride: break;
    default: return false;
    }
    const auto* const widget = qobject_cast<QWidget*>(watched);
    return widget && widget->window() == m_view.window() && takes(*static_cast<QKeyEvent*>(event));
}

/// Whether the window and its shortcuts are not to see this.
bool AnswerInput::takes(QKeyEvent& key) {
    bool isTaken = false;
    switch (key.type()) {
    case QEvent::KeyPress:
        stirred();
        isTaken = repeats(key) ? takesRepeat(key) : takesPress(key);
        break;
    case QEvent::KeyRelease: released(key); break;
    default:
        repeats(key);
        isTaken = isKept(key);
        break;
    }
    if (isTaken)
        key.accept();
    return isTaken;
}

/// The toolkit takes the keyboard for its menus, and gives it back for the whole program after them.
void AnswerInput::popupCameOrWent() {
    m_grab.reset();
    setGrip(false, m_isLetGo);
    follow();
}

void AnswerInput::windowLeft() {
    m_release = {};
    m_escape.reset();
    m_absence.reset();
    m_isResting = false;
    m_answeringKey.reset();
    m_grab.reset();
    setGrip(false, false);
}

std::optional<KeyStroke> AnswerInput::answer(const QKeyEvent& press) const {
    const auto stroke = m_needs.keys.stroke(hardwarePress(press));
    return stroke && !worksWindow(*stroke) ? stroke : std::nullopt;
}

bool AnswerInput::takesPress(const QKeyEvent& press) {
    if (m_question != Question::waiting)
        return isKept(press);
    if (isPlainEscape(press)) {
        beginToLetGo();
        return true;
    }
    const auto stroke = answer(press);
    if (!stroke)
        return false;
    m_answeringKey = press.nativeScanCode();
    Q_EMIT answered(*stroke);
    return true;
}

/// Held keys neither answer nor press buttons over and over; they only walk.
bool AnswerInput::takesRepeat(const QKeyEvent& press) const {
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Escape: return true;
    default: return isKept(press);
    }
}

/// Whether the press is the question's, or was until just now.
bool AnswerInput::isKept(const QKeyEvent& press) const {
    return m_answeringKey == press.nativeScanCode() || (m_question != Question::none && answer(press));
}

void AnswerInput::released(const QKeyEvent& release) {
    if (release.isAutoRepeat())
        return;
    const std::uint32_t key = release.nativeScanCode();
    // The same one comes to a widget and then to those that it is in.
    if (m_release.key != key || m_release.time != release.timestamp())
        m_release = {key, release.timestamp(), m_answeringKey == key};
    if (release.key() == Qt::Key_Escape)
        m_isEscapeDown = false;
    if (m_answeringKey == key) {
        m_answeringKey.reset();
        follow();
    }
}

/// Whether a press is that of a held key again. A release at its very same time was none: on a busy machine
/// the toolkit sees that too late to mark the two as repetitions.
bool AnswerInput::repeats(const QKeyEvent& press) {
    if (press.isAutoRepeat())
        return true;
    const std::uint32_t key = press.nativeScanCode();
    if (press.timestamp() == 0 || m_release.time != press.timestamp() || m_release.key != key)
        return false;
    if (press.key() == Qt::Key_Escape)
        m_isEscapeDown = true;
    if (m_release.wasAnswer && !m_answeringKey) {
        m_answeringKey = key;
        follow();
    }
    return true;
}

void AnswerInput::beginToLetGo() {
    if (grip() != Grip::allKeys)
        return;
    m_isEscapeDown = true;
    m_escape = m_needs.timers.after(letGoAfter, [this] {
        if (!m_isEscapeDown)
            return;
        m_grab.reset();
        setGrip(false, true);
    });
}

} // namespace quillon
