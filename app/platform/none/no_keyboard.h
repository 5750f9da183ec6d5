#pragma once

#include <quillon/app/ports/keyboard.h>

#include <limits>
#include <memory>

namespace quillon {

/// A desktop without global input: no modifier is ever down and nothing is ever called.
class NoKeyboard final : public Keyboard {
  public:
    Modifiers modifiers() const override { return {}; }
    Subscription onModifiersChanged(std::function<void(Modifiers)>) override { return {}; }
    std::unique_ptr<InputAges> observeInput() override { return std::make_unique<NoAges>(); }

  private:
    class NoAges final : public InputAges {
      public:
        Seconds sinceLast(InputKind) const override {
            return Seconds(std::numeric_limits<double>::infinity());
        }
    };
};

} // namespace quillon
