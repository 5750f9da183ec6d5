#pragma once

#include <quillon/tests/app/views/support/view_desk.h>

#include <QString>

#include <functional>
#include <vector>

namespace quillon {

/// One picture: how to bring a desk into the state that it shows.
struct Scene {
    QString name;
    std::function<void(ViewDesk&)> prepare;
    Stickiness stickiness = Stickiness::held;
    QString query;
};

std::vector<Scene> overlayScenes();

} // namespace quillon
