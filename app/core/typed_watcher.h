#pragma once

#include <quillon/app/ports/typed_keys.h>
#include <quillon/kit/menu/menu_entry.h>

#include <functional>
#include <span>

namespace quillon {

/// Finds the command whose shortcut was typed. Only presses with ⌘ or ⌃ are looked at, and none is kept.
class TypedWatcher {
  public:
    /// `keys` outlive the watcher.
    explicit TypedWatcher(TypedKeys& keys) : m_keys(keys) {}
    TypedWatcher(const TypedWatcher&) = delete;
    TypedWatcher& operator=(const TypedWatcher&) = delete;

    /// The commands of the application that is typed into, in the order of its sheet; none where it has no
    /// sheet. They are looked at before it is asked again.
    std::function<std::span<const MenuEntry>()> entries;
    /// The shortcut of this command, the first of those that have it, was typed. One of `entries`.
    std::function<void(const MenuEntry& entry)> onTyped;

    /// Begins to watch; anew if it already does.
    void start();
    void stop() { m_strokes.reset(); }
    bool isWatching() const { return static_cast<bool>(m_strokes); }

  private:
    void handle(const KeyStroke& stroke) const;

    TypedKeys& m_keys;
    Subscription m_strokes;
};

} // namespace quillon
