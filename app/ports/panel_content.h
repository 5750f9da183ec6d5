#pragma once

#include <functional>
#include <memory>

class QWidget;

namespace quillon {

/// Whether a panel is there for the pointer.
enum class PanelInput {
    takes, ///< it is pressed on, and may be given the keyboard
    passes ///< clicks reach what lies below
};

/// How a panel differs from others.
struct PanelTraits {
    double cornerRadius = 0; ///< of the background that the content draws, in logical pixels
    PanelInput input = PanelInput::takes;
    bool hasShadow = true; ///< where the desktop blends windows
};

/// What a panel shows.
struct PanelContent {
    std::shared_ptr<QWidget> widget; ///< draws its own background with rounded corners; never null
    PanelTraits traits;
    std::function<void()> prepare; ///< brings the hidden widget up to date; may be empty
};

} // namespace quillon
