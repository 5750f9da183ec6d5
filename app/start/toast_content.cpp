#include "toast_content.h"

#include <quillon/app/views/toast/nudge_toast_view.h>

namespace quillon {

PanelContent toastContent(AppModel& model, ThemeSource& themes) {
    return {
        .widget = std::make_shared<NudgeToastView>(model, themes),
        .traits = {.cornerRadius = NudgeToastView::cornerRadius, .input = PanelInput::passes},
        .prepare = {}};
}

} // namespace quillon
