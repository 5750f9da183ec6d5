#pragma once

#include <quillon/app/ports/session_start.h>

namespace quillon {

/// A session that starts programs, unless it is told to refuse. Off at first.
class FakeSessionStart final : public SessionStart {
  public:
    bool isOffered() const override { return isThere; }
    bool isOn() const override { return m_isOn; }
    bool setOn(bool on) override {
        if (refuses)
            return false;
        m_isOn = on;
        return true;
    }

    bool isThere = true;
    bool refuses = false;

  private:
    bool m_isOn = false;
};

} // namespace quillon
