#pragma once

#include <quillon/app/ports/windows.h>

namespace quillon {

/// A program without any window to open.
class NoWindows final : public Windows {
  public:
    void open(WindowName) override {}
    bool offers(WindowName) const override { return false; }
    bool hasKeyboard(WindowName) const override { return false; }
};

} // namespace quillon
