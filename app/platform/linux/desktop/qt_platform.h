#pragma once

#include <QByteArray>

namespace quillon {

/// The Qt platform to draw with, as $QT_QPA_PLATFORM names it; "" when there is none that would work.
QByteArray usableQtPlatform();

} // namespace quillon
