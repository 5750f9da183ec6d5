#include "named_apps.h"

#include <quillon/app/views/components/foreign_text.h>

#include <QCollator>

#include <algorithm>

namespace quillon {

QString shownName(const AppSheet& sheet) {
    return foreignLine(sheet.appName.empty() ? sheet.bundleID : sheet.appName);
}

std::vector<NamedApp> appsByName(const SharedSheets& sheets) {
    std::vector<NamedApp> apps;
    for (const auto& [bundleID, sheet] : sheets)
        apps.push_back({bundleID, shownName(*sheet)});
    QCollator order;
    if (order.locale() == QLocale::c())
        order.setLocale(QLocale(QLocale::English)); // the plain locale would compare codes
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(apps, [&](const NamedApp& one, const NamedApp& other) {
        return order.compare(one.name, other.name) < 0;
    });
    return apps;
}

} // namespace quillon
