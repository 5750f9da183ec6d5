#include "frame_watch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

namespace quillon {

namespace {

constexpr qint64 patience = 2000;

} // namespace

FrameWatch::FrameWatch() {
    qApp->installEventFilter(this);
}

bool FrameWatch::eventFilter(QObject* watched, QEvent* event) {
    // The viewport of a scroll area is painted under its parent's name.
    if (event->type() == QEvent::Paint && m_className && watched->parent()
        && (std::strcmp(watched->metaObject()->className(), m_className) == 0
            || std::strcmp(watched->parent()->metaObject()->className(), m_className) == 0))
        m_painted = true;
    return QObject::eventFilter(watched, event);
}

bool FrameWatch::wait(const char* className) {
    m_className = className;
    m_painted = false;
    QElapsedTimer timer;
    timer.start();
    while (!m_painted && timer.elapsed() < patience)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    awaitServer();
    return m_painted;
}

void awaitServer() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return;
    xcb_connection_t* connection = x11->connection();
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

} // namespace quillon
