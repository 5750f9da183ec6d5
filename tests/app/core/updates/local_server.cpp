#include "local_server.h"

#include <QHostAddress>

#include <memory>
#include <stdexcept>
#include <utility>

namespace quillon {

LocalServer::LocalServer(Respond respond) : m_respond(std::move(respond)) {
    if (!m_server.listen(QHostAddress::LocalHost))
        throw std::runtime_error("no port to listen on");
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket* const client = m_server.nextPendingConnection())
            greet(*client);
    });
}

void LocalServer::greet(QTcpSocket& client) {
    const auto request = std::make_shared<std::string>();
    QObject::connect(&client, &QTcpSocket::readyRead, &client, [this, &client, request] {
        *request += client.readAll().toStdString();
        if (!request->ends_with("\r\n\r\n"))
            return;
        m_requests.push_back(request->substr(0, request->find("\r\n")));
        m_respond(client, std::exchange(*request, {}));
    });
}

QUrl LocalServer::url(const std::string& path) const {
    QUrl url(QStringLiteral("http://127.0.0.1"));
    url.setPort(m_server.serverPort());
    url.setPath(QString::fromStdString(path));
    return url;
}

LocalServer::Respond LocalServer::saying(std::string bytes) {
    return [bytes = std::move(bytes)](QTcpSocket& client, const std::string&) {
        client.write(bytes.data(), static_cast<qint64>(bytes.size()));
        client.disconnectFromHost();
    };
}

LocalServer::Respond LocalServer::status(int status) {
    return saying("HTTP/1.1 " + std::to_string(status) + " Some Words\r\nContent-Length: 0\r\n\r\n");
}

LocalServer::Respond LocalServer::body(std::string text) {
    return [text = std::move(text)](QTcpSocket& client, const std::string& request) {
        const std::string head =
            "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(text.size()) + "\r\n\r\n";
        saying(request.starts_with("HEAD") ? head : head + text)(client, request);
    };
}

LocalServer::Respond LocalServer::redirectingTo(std::string address, std::string nextPath, Respond next) {
    return [address = std::move(address), nextPath = std::move(nextPath),
            next = std::move(next)](QTcpSocket& client, const std::string& request) {
        if (request.find(" " + nextPath + " ") != std::string::npos)
            next(client, request);
        else
            saying("HTTP/1.1 302 Found\r\nLocation: " + address + "\r\nContent-Length: 0\r\n\r\n")(
                client, request);
    };
}

LocalServer::Respond LocalServer::silence() {
    return [](QTcpSocket&, const std::string&) {};
}

} // namespace quillon
