#include "served_object.h"

#include <QDBusError>
#include <QDBusVariant>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

QDBusMessage unknown(const QDBusMessage& message) {
    return message.createErrorReply(
        QDBusError::UnknownMethod, u"There is no method %1 with these arguments."_s.arg(message.member()));
}

} // namespace

ServedObject::ServedObject(QDBusConnection bus, QString path, QString interface, QString description)
    : m_bus(std::move(bus)), m_path(std::move(path)), m_interface(std::move(interface)),
      m_description(std::move(description)) {
    m_bus.registerVirtualObject(m_path, this);
}

ServedObject::~ServedObject() {
    m_bus.unregisterObject(m_path);
}

QString ServedObject::introspect(const QString&) const {
    return m_description;
}

bool ServedObject::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QDBusMessage answer = answerTo(message);
    if (message.isReplyRequired())
        connection.send(answer);
    return true;
}

QDBusMessage ServedObject::answerTo(const QDBusMessage& message) {
    if (message.interface() == propertiesInterface)
        return answerProperties(message);
    // A call need not say the interface.
    if (!message.interface().isEmpty() && message.interface() != m_interface)
        return unknown(message);
    const auto answer = call(message);
    return answer ? message.createReply(*answer) : unknown(message);
}

QDBusMessage ServedObject::answerProperties(const QDBusMessage& message) const {
    const QVariantList& arguments = message.arguments();
    if (arguments.isEmpty() || arguments.constFirst().toString() != m_interface)
        return message.createErrorReply(QDBusError::UnknownInterface, u"There is no such interface."_s);
    if (message.member() == "GetAll"_L1 && message.signature() == "s"_L1)
        return message.createReply(QVariant(properties()));
    if (message.member() == "Get"_L1 && message.signature() == "ss"_L1) {
        const QVariant value = properties().value(arguments.at(1).toString());
        if (value.isValid())
            return message.createReply(QVariant::fromValue(QDBusVariant(value)));
        return message.createErrorReply(QDBusError::UnknownProperty, u"There is no such property."_s);
    }
    if (message.member() == "Set"_L1)
        return message.createErrorReply(QDBusError::PropertyReadOnly, u"Properties are only read."_s);
    return unknown(message);
}

void ServedObject::emitSignal(const QString& name, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createSignal(m_path, m_interface, name);
    message.setArguments(arguments);
    m_bus.send(message);
}

} // namespace quillon
