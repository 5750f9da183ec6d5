#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace quillon {

/// UTF-8 as Qt keeps text; broken bytes become U+FFFD.
inline QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string utf8(const QString& text) {
    return text.toStdString();
}

/// For one line on the screen: line breaks, tabs and runs of blanks become single blanks.
inline QString singleLine(std::string_view utf8) {
    return text(utf8).simplified();
}

} // namespace quillon
