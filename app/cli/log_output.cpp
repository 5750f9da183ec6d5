#include "log_output.h"

#include "output.h"

#include <QString>
#include <QtGlobal>

namespace quillon {

namespace {

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    Output().log(TerminalText::of(qFormatLogMessage(type, context, message).toStdString()));
}

} // namespace

void logToOutput() {
    qSetMessagePattern(QStringLiteral("%{time hh:mm:ss.zzz} %{if-category}%{category}: %{endif}%{message}"));
    qInstallMessageHandler(write);
}

} // namespace quillon
