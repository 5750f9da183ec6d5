#pragma once

#include <QByteArray>

#include <string>

namespace quillon {

/// What Qt is to draw with.
struct QtPlatformChoice {
    QByteArray name;     ///< as $QT_QPA_PLATFORM names it; "" when there is none that would work
    std::string problem; ///< then: why, for the user
};

/// Looks before Qt does, which ends the program where it finds nothing.
QtPlatformChoice usableQtPlatform();

} // namespace quillon
