#pragma once

#include <quillon/app/ports/key_reading.h>
#include <quillon/app/ports/keyboard_grab.h>
#include <quillon/app/ports/timers.h>
#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <QKeyEvent>
#include <QObject>
#include <QWidget>

#include <cstdint>
#include <optional>

namespace quillon {

/// Which keys come to the window while a question waits.
enum class Grip {
    someKeys, ///< those that the desktop leaves
    allKeys,  ///< every key
    letGo,    ///< those that the desktop leaves, because the user wanted it so
};

/// How far the question of a round is.
enum class Question {
    none, ///< nothing is asked
    waiting,
    answered, ///< its answer is shown
};

/// Takes the key presses that answer a question, wherever in the window the keyboard is, and has all of them
/// come there: while a question waits, the window has the focus and no menu is open. Who holds Esc for a
/// second gets the keyboard back, until the window is come back to or the next round begins. Who does nothing
/// for half a minute may be gone: until a key or the pointer stirs the keyboard is free for whatever locks
/// the screen. While the answer is shown, presses that could have been one do nothing: they come from fingers
/// that are a moment late.
class AnswerInput : public QObject {
    Q_OBJECT

  public:
    /// All of it outlives the input.
    struct Needs {
        KeyReading& keys;
        KeyboardGrab& grab;
        Timers& timers;
    };
    /// Of the window that `view` is in. `view` outlives the input.
    AnswerInput(QWidget& view, Needs needs);
    ~AnswerInput() override;

    /// Begins to listen when the view comes to the screen, and ends when it goes.
    void start();
    void stop();
    void setQuestion(Question question);
    /// A round begins.
    void beginRound();

    Grip grip() const;
    /// Whether the desktop tells what keys stand for; without, no press is an answer. After `start`.
    bool canRead() const { return static_cast<bool>(m_reading); }

  Q_SIGNALS:
    void answered(const quillon::KeyStroke& stroke);
    void gripChanged();
    /// What the keys stand for is another.
    void keysChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void popupCameOrWent();
    void windowLeft();
    void follow();
    void setGrip(bool isTaken, bool isLetGo);
    void stirred();
    bool takes(QKeyEvent& key);
    bool takesPress(const QKeyEvent& press);
    bool takesRepeat(const QKeyEvent& press) const;
    bool isKept(const QKeyEvent& press) const;
    void released(const QKeyEvent& release);
    bool repeats(const QKeyEvent& press);
    void beginToLetGo();
    std::optional<KeyStroke> answer(const QKeyEvent& press) const;

    QWidget& m_view;
    Needs m_needs;
    bool m_isListening = false;
    Question m_question = Question::none;
    bool m_isTaken = false;
    bool m_isLetGo = false;
    bool m_isResting = false; ///< nobody is there
    /// The key that gave the answer, until it comes up: what its repetitions would do to this window, or to a
    /// desktop that has the keyboard back, is nobody's wish.
    std::optional<std::uint32_t> m_answeringKey;
    /// What last came up, at which time, and whether it had given the answer.
    struct Release {
        std::uint32_t key = 0;
        std::uint64_t time = 0;
        bool wasAnswer = false;
    };
    Release m_release;
    bool m_isEscapeDown = false;
    Subscription m_reading;
    Subscription m_grab;
    Subscription m_escape;  ///< since Esc was pressed
    Subscription m_absence; ///< while the keyboard is taken
};

} // namespace quillon
