#pragma once

#include <quillon/app/ports/silent_apps.h>

namespace quillon {

/// A desktop on which nobody can tell who does not share menus. It never answers.
class NoSilentApps final : public SilentApps {
  public:
    Subscription look(std::function<void(std::vector<std::string>)>) override { return {}; }
};

} // namespace quillon
