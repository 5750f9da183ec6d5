#pragma once

#include <QTest>
#include <QWidget>

namespace quillon {

/// Has the window system make this window the active one, as a click does. False when it does not become it.
inline bool makeActive(QWidget& window) {
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

} // namespace quillon
