#include "bus_running_program.h"

#include "instance_name.h"

#include <QDBusMessage>

#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr int answerMilliseconds = 2000;

QString operationOf(ProgramRequest request) {
    switch (request) {
    case ProgramRequest::showOverlay: return QStringLiteral("ShowOverlay");
    case ProgramRequest::showSample: return QStringLiteral("ShowSample");
    case ProgramRequest::serve: return QStringLiteral("IsWatching"); // it is there already
    case ProgramRequest::quit: return QStringLiteral("Quit");
    case ProgramRequest::openWelcome:
    case ProgramRequest::openLibrary:
    case ProgramRequest::openPractice:
    case ProgramRequest::openSettings: return QStringLiteral("OpenWindow");
    case ProgramRequest::activate: break;
    }
    return QStringLiteral("Activate");
}

bool isNobodyThere(const QString& error) {
    return error == QLatin1StringView("org.freedesktop.DBus.Error.ServiceUnknown")
           || error == QLatin1StringView("org.freedesktop.DBus.Error.NameHasNoOwner");
}

/// Whether a window opens is told in the answer; of other requests it is enough that there is one.
RunningProgram::Answer meaningOf(const QDBusMessage& answer, bool opensWindow) {
    if (answer.type() == QDBusMessage::ReplyMessage) {
        const bool isRefused = opensWindow && !answer.arguments().value(0, true).toBool();
        return isRefused ? RunningProgram::Answer::refused : RunningProgram::Answer::done;
    }
    return isNobodyThere(answer.errorName()) ? RunningProgram::Answer::notRunning
                                             : RunningProgram::Answer::silent;
}

} // namespace

QDBusMessage BusRunningProgram::call(const QString& operation, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1StringView(instanceName), QLatin1StringView(instancePath),
        QLatin1StringView(instanceInterface), operation);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return m_bus.connection().call(message, QDBus::Block, answerMilliseconds);
}

QDBusMessage BusRunningProgram::send(ProgramRequest request) const {
    const auto window = windowOf(request);
    if (!window)
        return call(operationOf(request));
    return call(
        operationOf(request), {QString::fromStdString(std::string(identifier(*window))),
                               QString::fromStdString(m_activationToken)});
}

RunningProgram::Answer BusRunningProgram::ask(ProgramRequest request) {
    return m_bus.answers() ? meaningOf(send(request), windowOf(request).has_value()) : Answer::unreachable;
}

RunningProgram::Answer BusRunningProgram::askForPractice(const std::string& bundleID) {
    if (!m_bus.answers())
        return Answer::unreachable;
    const QVariantList arguments{QString::fromStdString(bundleID), QString::fromStdString(m_activationToken)};
    return meaningOf(call(QStringLiteral("OpenPractice"), arguments), true);
}

std::string activationTokenOf(const Environment& environment) {
    std::string token = environment("XDG_ACTIVATION_TOKEN");
    return token.empty() ? environment("DESKTOP_STARTUP_ID") : token;
}

std::optional<bool> BusRunningProgram::askWhether(const QString& question) const {
    const QDBusMessage answer = call(question);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        return std::nullopt;
    return answer.arguments().constFirst().toBool();
}

std::optional<bool> BusRunningProgram::isInTray() const {
    return m_bus.answers() ? askWhether(QStringLiteral("IsInTray")) : std::nullopt;
}

std::optional<Watching> BusRunningProgram::watching() const {
    if (!m_bus.answers())
        return std::nullopt;
    Watching watching;
    const std::array<std::pair<const char*, bool*>, 3> questions{{
        {"IsWatching", &watching.holds},
        {"IsWatchingClicks", &watching.clicks},
        {"IsWatchingTyping", &watching.typing},
    }};
    for (const auto& [question, result] : questions) {
        const auto answer = askWhether(QLatin1StringView(question));
        if (!answer)
            return std::nullopt;
        *result = *answer;
    }
    return watching;
}

} // namespace quillon
