#include "ask_feed.h"

#include "feed_address.h"

#include <QEventLoop>
#include <QMetaObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <memory>

namespace quillon {

namespace {

constexpr int mostRedirections = 5;
/// Up to here errors are those of the connection and of a proxy; a server answered where they are higher.
constexpr auto lastErrorOfProxy = QNetworkReply::UnknownProxyError;

QNetworkRequest networkRequest(const FeedRequest& request) {
    QNetworkRequest sent(request.address);
    sent.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    sent.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    sent.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    sent.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    sent.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    sent.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    sent.setMaximumRedirectsAllowed(mostRedirections);
    sent.setHeader(QNetworkRequest::UserAgentHeader, QString::fromStdString(request.sender));
    // As it is: so the limit of its size is one of what is received, too.
    sent.setRawHeader(QByteArrayLiteral("Accept-Encoding"), QByteArrayLiteral("identity"));
    return sent;
}

bool isOfServer(QNetworkReply::NetworkError error) {
    return error == QNetworkReply::NoError || error > lastErrorOfProxy;
}

/// One request until it is answered.
class Exchange {
  public:
    explicit Exchange(const FeedRequest& request) {
        m_manager.setAutoDeleteReplies(false);
        const QNetworkRequest sent = networkRequest(request);
        m_reply.reset(request.method == FeedMethod::head ? m_manager.head(sent) : m_manager.get(sent));
        m_reply->setReadBufferSize(largestFeed + 1);
        QNetworkReply* const reply = m_reply.get();
        QObject::connect(
            reply, &QNetworkReply::redirected, reply, [reply, from = request.address](const QUrl& to) {
                if (FeedAddress::mayLead(from, to))
                    Q_EMIT reply->redirectAllowed();
                else
                    reply->abort();
            });
        QObject::connect(reply, &QNetworkReply::readyRead, reply, [this] { readMore(); });
        QObject::connect(reply, &QNetworkReply::finished, &m_loop, &QEventLoop::quit);
    }

    FeedAnswer wait(std::stop_token stop) {
        const std::stop_callback stopping(
            stop, [this] { QMetaObject::invokeMethod(&m_loop, &QEventLoop::quit, Qt::QueuedConnection); });
        if (!m_reply->isFinished())
            m_loop.exec();
        return m_reply->isFinished() ? answer() : FeedAnswer();
    }

  private:
    void readMore() {
        m_body += m_reply->readAll();
        if (m_body.size() > largestFeed)
            m_reply->abort();
    }

    FeedAnswer answer() {
        if (!isOfServer(m_reply->error()))
            return {};
        const QVariant status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (!status.isValid())
            return {};
        FeedAnswer answer{.status = status.toInt()};
        if (m_reply->error() == QNetworkReply::NoError)
            answer.body = m_body.toStdString();
        return answer;
    }

    QNetworkAccessManager m_manager;
    QEventLoop m_loop;
    QByteArray m_body;
    std::unique_ptr<QNetworkReply> m_reply;
};

} // namespace

FeedAnswer askFeed(const FeedRequest& request, std::stop_token stop) {
    if (!FeedAddress::isFeed(request.address))
        return {};
    return Exchange(request).wait(stop);
}

} // namespace quillon
