#pragma once

#include "counted_event.h"

#include <quillon/app/ports/silent_apps.h>

#include <utility>

namespace quillon {

/// Silent applications that are found when a test says so.
class FakeSilentApps final : public SilentApps {
  public:
    Subscription look(std::function<void(std::vector<std::string> names)> found) override {
        ++m_looks;
        return m_found.subscribe(std::move(found));
    }

    /// Answers all who look.
    void answer(const std::vector<std::string>& names) { m_found.emit(names); }
    /// How often they were looked for.
    int looks() const { return m_looks; }

  private:
    int m_looks = 0;
    CountedEvent<std::vector<std::string>> m_found;
};

} // namespace quillon
