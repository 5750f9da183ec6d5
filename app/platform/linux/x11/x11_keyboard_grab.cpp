#include "x11_keyboard_grab.h"

#include "toolkit_connection.h"
#include "x11_reply.h"

#include <QTimer>

#include <xcb/xcbext.h>

#include <chrono>
#include <optional>
#include <utility>

namespace quillon {

namespace {

/// Until it is looked whether the server has answered.
constexpr std::chrono::milliseconds answerPause{4};
/// Until it is asked again, while a window manager switches windows or a menu is open.
constexpr std::chrono::milliseconds retryPause{100};

class Grab {
  public:
    Grab(xcb_connection_t* xcb, std::uint64_t window, std::function<void()> taken)
        : m_xcb(xcb), m_window(static_cast<xcb_window_t>(window)), m_taken(std::move(taken)) {
        m_pause.setSingleShot(true);
        QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { goOn(); });
        ask();
    }
    ~Grab() {
        if (m_question)
            xcb_discard_reply(m_xcb, m_question->sequence);
        xcb_ungrab_keyboard(m_xcb, XCB_CURRENT_TIME);
        xcb_flush(m_xcb);
    }
    Grab(const Grab&) = delete;
    Grab& operator=(const Grab&) = delete;

  private:
    void ask() {
        m_question =
            xcb_grab_keyboard(m_xcb, 0, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        xcb_flush(m_xcb);
        m_pause.start(answerPause);
    }

    void goOn() {
        if (m_question)
            look();
        else
            ask();
    }

    void look() {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(m_xcb, m_question->sequence, &reply, &error) == 0) {
            m_pause.start(answerPause);
            return;
        }
        m_question.reset();
        const X11Reply<xcb_generic_error_t> failure(error);
        const X11Reply<xcb_grab_keyboard_reply_t> answer(static_cast<xcb_grab_keyboard_reply_t*>(reply));
        if (answer && answer->status == XCB_GRAB_STATUS_SUCCESS)
            std::exchange(m_taken, nullptr)();
        else if (answer) // else the window is gone
            m_pause.start(retryPause);
    }

    xcb_connection_t* m_xcb;
    xcb_window_t m_window;
    std::function<void()> m_taken;
    std::optional<xcb_grab_keyboard_cookie_t> m_question;
    QTimer m_pause;
};

} // namespace

std::unique_ptr<X11KeyboardGrab> X11KeyboardGrab::ofToolkit() {
    xcb_connection_t* const toolkit = toolkitConnection();
    return toolkit ? std::make_unique<X11KeyboardGrab>(toolkit) : nullptr;
}

Subscription X11KeyboardGrab::take(std::uint64_t window, std::function<void()> taken) {
    auto grab = std::make_shared<Grab>(m_toolkit, window, std::move(taken));
    return Subscription([grab = std::move(grab)]() mutable { grab.reset(); });
}

} // namespace quillon
