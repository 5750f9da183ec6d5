#include "instance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace quillon {

namespace {

const QString serviceName = QStringLiteral("app.quillon.Quillon");
const QString objectPath = QStringLiteral("/app/quillon/Quillon");
const QString interfaceName = QStringLiteral("app.quillon.Quillon1");
constexpr int answerMilliseconds = 2000;

} // namespace

InstanceService::Claim InstanceService::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Claim::noSessionBus;
    // The object first: whoever sees the name can call it.
    bus.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(serviceName))
        return Claim::first;
    bus.unregisterObject(objectPath);
    return Claim::alreadyTaken;
}

bool askRunningInstance(const QString& operation) {
    if (!instanceIsRunning())
        return false;
    QDBusMessage request = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, operation);
    request.setAutoStartService(false);
    const QDBusMessage answer = QDBusConnection::sessionBus().call(request, QDBus::Block, answerMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage;
}

bool instanceIsRunning() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(serviceName);
}

} // namespace quillon
