#include "toolkit_connection.h"

#include <QGuiApplication>

namespace quillon {

xcb_connection_t* toolkitConnection() {
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    const auto* native =
        application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return native ? native->connection() : nullptr;
}

} // namespace quillon
