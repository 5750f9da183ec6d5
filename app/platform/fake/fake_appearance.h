#pragma once

#include "counted_event.h"

#include <quillon/app/ports/appearance.h>

#include <utility>

namespace quillon {

/// A look that is changed by hand; light with no font at first.
class FakeAppearance final : public Appearance {
  public:
    Look look() const override { return m_look; }
    Subscription onChanged(std::function<void()> callback) override {
        return m_changed.subscribe(std::move(callback));
    }

    /// Changes the look, and tells when that changed it.
    void set(Look look) {
        if (m_look == look)
            return;
        m_look = std::move(look);
        m_changed.emit();
    }

  private:
    Look m_look;
    CountedEvent<> m_changed;
};

} // namespace quillon
