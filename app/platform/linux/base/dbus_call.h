#pragma once

#include <QDBusPendingCall>

#include <functional>

class QObject;

namespace quillon {

/// Calls `handle` with the finished call, in the event loop, unless `context` is gone by then.
void whenFinished(
    QObject* context, const QDBusPendingCall& pending, std::function<void(const QDBusPendingCall&)> handle);

} // namespace quillon
