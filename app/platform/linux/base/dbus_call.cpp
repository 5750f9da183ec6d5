#include "dbus_call.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace quillon {

void whenFinished(
    QObject* context, const QDBusPendingCall& pending, std::function<void(const QDBusPendingCall&)> handle) {
    auto* watcher = new QDBusPendingCallWatcher(pending, context);
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, context,
        [handle = std::move(handle)](QDBusPendingCallWatcher* finished) {
            finished->deleteLater();
            handle(*finished);
        });
}

} // namespace quillon
