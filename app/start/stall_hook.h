#pragma once

#include <QObject>

#include <memory>

namespace quillon {

/// Lets tests and benchmarks of other processes measure, over the session bus, how long the main thread is
/// ever busy. Null in programs that are built without (see QUILLON_STALL_HOOK), as people get them.
std::unique_ptr<QObject> stallHook();

} // namespace quillon
