#pragma once

#include <quillon/app/ports/menu_use.h>

namespace quillon {

/// A desktop that does not tell how menus are used.
class NoMenuUse final : public MenuUse {
  public:
    Subscription onEvidence(std::function<void(const MenuEvidence&)>) override { return {}; }
};

} // namespace quillon
