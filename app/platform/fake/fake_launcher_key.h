#pragma once

#include "counted_event.h"

#include <quillon/app/ports/launcher_key.h>

#include <utility>

namespace quillon {

/// A desktop whose launcher opens with what it is told; with nothing at first.
class FakeLauncherKey final : public LauncherKey {
  public:
    Modifiers modifier() const override { return m_modifier; }
    Subscription onChanged(std::function<void()> callback) override {
        return m_changed.subscribe(std::move(callback));
    }

    void set(Modifiers modifier) {
        m_modifier = modifier;
        m_changed.emit();
    }
    std::size_t listeners() const { return m_changed.listeners(); }

  private:
    Modifiers m_modifier;
    CountedEvent<> m_changed;
};

} // namespace quillon
