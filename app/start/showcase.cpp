#include "showcase.h"

#include "overlay_content.h"
#include "toast_content.h"

#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

namespace quillon {

Showcase::Showcase(
    const Clock& clock, Timers& timers, Background& background, ThemeSource& themes, AppIconCache& icons,
    PanelMaker& panels, Settings& settings)
    : m_panels(
        panels,
        [this, &themes, &icons] { return overlayContent(m_model, themes, icons, OverlayMode::showcase); },
        [this, &themes] { return toastContent(m_model, themes); }),
      m_model({
          .frontApplication = m_none.front,
          .menuReader = m_none.menus,
          .accessibility = m_none.access,
          .keyboard = m_none.keyboard,
          .menuUse = m_none.menuUse,
          .typedKeys = m_none.typedKeys,
          .clock = clock,
          .timers = timers,
          .background = background,
          .panels = m_panels,
          .windows = m_none.windows,
          .settings = settings,
      }) {
    m_model.showSample(SampleMenus::sheet(), SampleMenus::usage(), SampleMenus::annotations());
}

void Showcase::show() {
    m_model.showOverlay(Stickiness::sticky);
}

} // namespace quillon
