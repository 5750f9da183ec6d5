#pragma once

#include <QString>
#include <QUrl>

#include <optional>
#include <string>

/// Which pages are opened.
namespace quillon::WebAddress {

/// Longer ones are none. In characters.
inline constexpr qsizetype longest = 2048;

/// Whether it is an address of the web that is asked safely.
bool isHttps(const QUrl& address);

/// A page that the user's browser may be sent to: https, without a user's name in it. Absent for any other.
std::optional<std::string> page(const QString& text);

} // namespace quillon::WebAddress
