#include "web_address.h"

#include <QHostAddress>

namespace quillon::WebAddress {

namespace {

bool isHttps(const QUrl& address) {
    return address.isValid() && address.scheme() == QLatin1String("https") && !address.host().isEmpty();
}

bool isThisComputer(const QString& host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

bool isLocal(const QUrl& address) {
    return address.isValid() && address.scheme() == QLatin1String("http") && isThisComputer(address.host());
}

} // namespace

bool isFeed(const QUrl& address) {
    return isHttps(address) || isLocal(address);
}

bool mayLead(const QUrl& from, const QUrl& to) {
    return isHttps(to) || (isLocal(from) && isLocal(to));
}

std::optional<std::string> page(const QString& text) {
    if (text.size() > longest)
        return std::nullopt;
    const QUrl address(text.trimmed(), QUrl::StrictMode);
    if (!isHttps(address) || !address.userInfo().isEmpty())
        return std::nullopt;
    return address.toString(QUrl::FullyEncoded).toStdString();
}

} // namespace quillon::WebAddress
