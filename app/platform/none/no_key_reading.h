#pragma once

#include <quillon/app/ports/key_reading.h>

namespace quillon {

/// A desktop that does not tell what its keys stand for.
class NoKeyReading final : public KeyReading {
  public:
    Subscription follow(std::function<void()>) override { return {}; }
    std::optional<KeyStroke> stroke(const HardwarePress&) const override { return std::nullopt; }
    std::optional<PrintedKeys> printed() const override { return std::nullopt; }
};

} // namespace quillon
