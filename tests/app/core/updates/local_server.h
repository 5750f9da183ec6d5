#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// A web server on this computer that says whatever a test wants it to. Needs the event loop of its thread.
class LocalServer {
  public:
    /// Called when a request has come in whole.
    using Respond = std::function<void(QTcpSocket& client, const std::string& request)>;

    explicit LocalServer(Respond respond);

    /// The address of a path on it: "/appcast.xml".
    QUrl url(const std::string& path) const;
    /// The first lines of the requests so far: "HEAD /appcast.xml HTTP/1.1".
    const std::vector<std::string>& requests() const { return m_requests; }

    /// Answers each request with these bytes and hangs up.
    static Respond saying(std::string bytes);
    /// Answers with this status and no body.
    static Respond status(int status);
    /// Answers with status 200 and a body, or, to HEAD, without.
    static Respond body(std::string text);
    /// Answers with 302 and an address to go to; requests of that path on this server are left to `next`.
    static Respond redirectingTo(std::string address, std::string nextPath, Respond next);
    static Respond silence();

  private:
    void greet(QTcpSocket& client);

    Respond m_respond;
    std::vector<std::string> m_requests;
    QTcpServer m_server;
};

} // namespace quillon
