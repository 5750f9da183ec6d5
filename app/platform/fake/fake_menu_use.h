#pragma once

#include "counted_event.h"

#include <quillon/app/ports/menu_use.h>

#include <cstddef>
#include <utility>

namespace quillon {

/// Menus whose use is told by hand.
class FakeMenuUse final : public MenuUse {
  public:
    Subscription onEvidence(std::function<void(const MenuEvidence&)> callback) override {
        return m_evidence.subscribe(std::move(callback));
    }
    void tell(const MenuEvidence& evidence) { m_evidence.emit(evidence); }
    /// How many listen.
    std::size_t monitors() const { return m_evidence.listeners(); }

  private:
    CountedEvent<const MenuEvidence&> m_evidence;
};

} // namespace quillon
