#pragma once

#include <quillon/app/ports/session_start.h>

namespace quillon {

/// A session that starts no programs.
class NoSessionStart final : public SessionStart {
  public:
    bool isOffered() const override { return false; }
    bool isOn() const override { return false; }
    bool setOn(bool) override { return false; }
};

} // namespace quillon
