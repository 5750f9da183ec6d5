#include "log.h"

#include <QString>

namespace quillon {

Q_LOGGING_CATEGORY(logMenus, "quillon.menus", QtWarningMsg)
Q_LOGGING_CATEGORY(logWindows, "quillon.windows", QtWarningMsg)
Q_LOGGING_CATEGORY(logInput, "quillon.input", QtWarningMsg)
Q_LOGGING_CATEGORY(logPanels, "quillon.panels", QtWarningMsg)
Q_LOGGING_CATEGORY(logUpdates, "quillon.updates", QtWarningMsg)

void logEverything() {
    QLoggingCategory::setFilterRules(QStringLiteral("quillon.*=true"));
}

} // namespace quillon
