#pragma once

#include <quillon/app/ports/running_app.h>

#include <QString>

namespace quillon {

/// An application as the log names it: "Geany (geany, process 4711)". Its windows' titles are no business of
/// the log's.
QString logged(const RunningApp& app);

} // namespace quillon
