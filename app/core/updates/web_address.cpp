#include "web_address.h"

namespace quillon::WebAddress {

bool isHttps(const QUrl& address) {
    return address.isValid() && address.scheme() == QLatin1String("https") && !address.host().isEmpty();
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
