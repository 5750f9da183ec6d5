#include "typed_watcher.h"

#include <algorithm>

namespace quillon {

void TypedWatcher::start() {
    stop();
    m_strokes = m_keys.onKeyStroke([this](const KeyStroke& stroke) { handle(stroke); });
}

void TypedWatcher::handle(const KeyStroke& stroke) const {
    constexpr Modifiers lookedAt{Modifiers::command, Modifiers::control};
    if (stroke.modifiers.isDisjoint(lookedAt) || !entries || !onTyped)
        return;
    const std::span<const MenuEntry> all = entries();
    const auto typed = std::ranges::find_if(
        all, [&stroke](const MenuEntry& entry) { return stroke.matches(entry.shortcut); });
    if (typed != all.end())
        onTyped(*typed);
}

} // namespace quillon
