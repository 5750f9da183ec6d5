#pragma once

#include <quillon/app/ports/tray.h>

namespace quillon {

/// A desktop without a tray.
class NoTray final : public Tray {
  public:
    void show(TrayPresence) override {}
    void setMenu(std::vector<TrayMenuItem>) override {}
    bool isShown() const override { return false; }
    Subscription onShownChanged(std::function<void()>) override { return {}; }
};

} // namespace quillon
