#include "logged_app.h"

namespace quillon {

QString logged(const RunningApp& app) {
    return QStringLiteral("%1 (%2, process %3)")
        .arg(
            QString::fromStdString(app.name), QString::fromStdString(app.bundleID), QString::number(app.pid));
}

} // namespace quillon
