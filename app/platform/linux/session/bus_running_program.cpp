#include "bus_running_program.h"

#include "instance_name.h"

#include <QDBusMessage>

namespace quillon {

namespace {

constexpr int answerMilliseconds = 2000;

QString operationOf(ProgramRequest request) {
    switch (request) {
    case ProgramRequest::showOverlay: return QStringLiteral("ShowOverlay");
    case ProgramRequest::showSample: return QStringLiteral("ShowSample");
    case ProgramRequest::quit: return QStringLiteral("Quit");
    case ProgramRequest::activate: break;
    }
    return QStringLiteral("Activate");
}

bool isNobodyThere(const QString& error) {
    return error == QLatin1StringView("org.freedesktop.DBus.Error.ServiceUnknown")
           || error == QLatin1StringView("org.freedesktop.DBus.Error.NameHasNoOwner");
}

} // namespace

RunningProgram::Answer BusRunningProgram::ask(ProgramRequest request) {
    if (!m_bus.answers())
        return Answer::unreachable;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QLatin1StringView(instanceName), QLatin1StringView(instancePath),
        QLatin1StringView(instanceInterface), operationOf(request));
    call.setAutoStartService(false);
    const QDBusMessage answer = m_bus.connection().call(call, QDBus::Block, answerMilliseconds);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return Answer::done;
    return isNobodyThere(answer.errorName()) ? Answer::notRunning : Answer::silent;
}

} // namespace quillon
