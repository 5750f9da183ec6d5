#include "x_server.h"

namespace quillon {

namespace {

constexpr int startLimit = 20'000; ///< milliseconds

} // namespace

XServer::XServer(const QStringList& options) {
    // The number of the first free display is written to the standard output once clients may connect.
    m_process.setProcessChannelMode(QProcess::SeparateChannels);
    m_process.start(
        QStringLiteral("Xvfb"),
        QStringList{
            QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            QStringLiteral("640x480x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
            QStringLiteral("-noreset")}
            + options);
    while (!m_process.canReadLine() && m_process.waitForReadyRead(startLimit)) {
    }
    const QByteArray number = m_process.readLine().trimmed();
    if (!number.isEmpty())
        m_display = ":" + number.toStdString();
}

XServer::~XServer() {
    kill();
}

void XServer::kill() {
    m_process.kill();
    m_process.waitForFinished();
}

} // namespace quillon
