#pragma once

#include <quillon/app/views/tray/tray_lines.h>

#include <QPixmap>
#include <QString>

#include <vector>

namespace quillon {

/// One picture of the tray's menu, as our own window.
struct TrayMenuScene {
    QString name;
    TrayFacts facts;
};

std::vector<TrayMenuScene> trayMenuScenes();

/// The tray's icon at the usual sizes, on a light and on a dark tray, each pixel enlarged so many times.
QPixmap trayIconPicture(int enlargement);

} // namespace quillon
