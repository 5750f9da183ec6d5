#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace quillon {

/// What a panel shows.
struct PanelContent {
    std::unique_ptr<QWidget> widget; ///< draws its own background with rounded corners
    double cornerRadius = 0;         ///< of that background, in logical pixels
    std::function<void()> prepare;   ///< brings the hidden widget up to date; may be empty
};

/// Makes a panel's content when the panel is made.
using MakePanelContent = std::function<PanelContent()>;

} // namespace quillon
