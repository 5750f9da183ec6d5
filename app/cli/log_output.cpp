#include "log_output.h"

#include "output.h"

#include <QLatin1StringView>
#include <QString>
#include <QtGlobal>

namespace quillon {

namespace {

/// Newer versions of Qt tell at every start that they take the plain locale's characters for UTF-8: that is
/// as it should be, also where the session's own locale is not installed.
bool isNoNews(const QString& message) {
    return message.startsWith(QLatin1StringView("Detected locale \"C\""));
}

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (isNoNews(message))
        return;
    Output().log(TerminalText::of(qFormatLogMessage(type, context, message).toStdString()));
}

} // namespace

void logToOutput() {
    qSetMessagePattern(QStringLiteral("%{time hh:mm:ss.zzz} %{if-category}%{category}: %{endif}%{message}"));
    qInstallMessageHandler(write);
}

} // namespace quillon
