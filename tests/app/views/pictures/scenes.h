#pragma once

#include <quillon/tests/app/views/support/view_desk.h>

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

namespace quillon {

/// One picture: how to bring a desk into the state that it shows.
struct Scene {
    QString name;
    std::function<void(ViewDesk&)> show; ///< a panel or a window
};

/// The panel on the screen, else a window; null when there is none.
QWidget* shownPanel();

std::vector<Scene> overlayScenes();
std::vector<Scene> toastScenes();

} // namespace quillon
