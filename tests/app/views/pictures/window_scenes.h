#pragma once

#include <quillon/tests/app/views/support/view_desk.h>

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace quillon {

/// A picture of a window: how to make it on a desk, shown.
struct WindowScene {
    QString name;
    std::function<std::unique_ptr<QWidget>(ViewDesk&)> show;
    /// What of it the picture shows; the window itself where this is empty.
    std::function<QWidget*(QWidget&)> part = {};
};

std::vector<WindowScene> libraryScenes();
std::vector<WindowScene> practiceScenes();
std::vector<WindowScene> settingsScenes();
std::vector<WindowScene> welcomeScenes();

} // namespace quillon
