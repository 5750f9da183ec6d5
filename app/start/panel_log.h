#pragma once

#include <QObject>

#include <memory>

namespace quillon {

/// Writes a line to the log for each of this program's windows that opens or closes, while it lives. Null
/// when that part of the log is off: it looks at every event.
std::unique_ptr<QObject> panelLog();

} // namespace quillon
