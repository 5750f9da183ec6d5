#pragma once

#include <quillon/tests/app/views/support/view_desk.h>

#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillon {

/// One picture: how to bring a desk into the state that it shows.
struct Scene {
    QString name;
    /// What the picture is of; null when it is not there. Lives as long as the desk.
    std::function<QWidget*(ViewDesk&)> show;
};

/// Leaves something to the desk.
template <class Kept>
Kept& keep(ViewDesk& desk, std::unique_ptr<Kept> what) {
    Kept& kept = *what;
    desk.kept = std::shared_ptr<Kept>(std::move(what));
    return kept;
}

std::vector<Scene> libraryScenes();
std::vector<Scene> overlayScenes();
std::vector<Scene> practiceScenes();
std::vector<Scene> settingsScenes();
std::vector<Scene> toastScenes();
std::vector<Scene> trayMenuScenes();
std::vector<Scene> updateScenes();
std::vector<Scene> welcomeScenes();

} // namespace quillon
