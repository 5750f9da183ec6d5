#pragma once

#include "counted_event.h"

#include <quillon/app/ports/typed_keys.h>

#include <cstddef>
#include <utility>

namespace quillon {

/// Keys that are pressed by hand.
class FakeTypedKeys final : public TypedKeys {
  public:
    Subscription onKeyStroke(std::function<void(const KeyStroke&)> callback) override {
        return m_strokes.subscribe(std::move(callback));
    }
    void press(const KeyStroke& stroke) { m_strokes.emit(stroke); }
    /// How many listen.
    std::size_t monitors() const { return m_strokes.listeners(); }

  private:
    CountedEvent<const KeyStroke&> m_strokes;
};

} // namespace quillon
