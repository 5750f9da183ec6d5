#include "feed_address.h"

#include <quillon/app/core/updates/web_address.h>

#include <QHostAddress>

namespace quillon::FeedAddress {

namespace {

bool isThisComputer(const QString& host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

bool isLocal(const QUrl& address) {
    return address.isValid() && address.scheme() == QLatin1String("http") && isThisComputer(address.host());
}

} // namespace

bool isFeed(const QUrl& address) {
    return WebAddress::isHttps(address) || isLocal(address);
}

bool mayLead(const QUrl& from, const QUrl& to) {
    return WebAddress::isHttps(to) || (isLocal(from) && isLocal(to));
}

} // namespace quillon::FeedAddress
