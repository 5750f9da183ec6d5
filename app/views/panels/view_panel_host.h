#pragma once

#include <quillon/app/ports/panel_content.h>
#include <quillon/app/ports/panel_host.h>
#include <quillon/app/ports/panel_maker.h>
#include <quillon/kit/base/subscription.h>

#include <functional>

namespace quillon {

/// The program's panels: the views' contents in what the desktop makes of them.
class ViewPanelHost final : public PanelHost {
  public:
    /// Makes a panel's content when the panel is made.
    using MakeContent = std::function<PanelContent()>;

    /// `maker` outlives the host and its panels. The others make what the panels show.
    ViewPanelHost(PanelMaker& maker, MakeContent overlay, MakeContent toast);

    std::vector<Screen> screens() const override;
    Subscription onScreensChanged(std::function<void()> callback) override;
    Point pointer() const override;
    std::unique_ptr<FloatingPanel> makeOverlayPanel() override;
    std::unique_ptr<FloatingPanel> makeToastPanel() override;

  private:
    PanelMaker& m_maker;
    MakeContent m_overlay;
    MakeContent m_toast;
};

} // namespace quillon
