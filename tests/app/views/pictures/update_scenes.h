#pragma once

#include "scenes.h"

#include <vector>

namespace quillon {

/// What is told of updates.
std::vector<Scene> updateScenes();

} // namespace quillon
