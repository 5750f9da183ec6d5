#pragma once

#include "counted_event.h"

#include <quillon/app/ports/key_reading.h>

#include <cstddef>
#include <map>
#include <utility>

namespace quillon {

/// Keys that stand for what a test says.
class FakeKeyReading final : public KeyReading {
  public:
    /// From now on the key with this number is read so, with what the press says is held.
    void define(std::uint32_t key, KeyStroke stroke) { m_strokes[key] = std::move(stroke); }
    void print(PrintedKeys keys) {
        m_printed = std::move(keys);
        m_changed.emit();
    }
    /// Makes it one that never tells anything.
    void disable() { m_isAble = false; }
    std::size_t followers() const { return m_changed.listeners(); }

    /// How a test writes down what is held, as the state of a press.
    static std::uint32_t stateOf(Modifiers held) { return static_cast<std::uint32_t>(held.rawValue()); }

    Subscription follow(std::function<void()> changed) override {
        return m_isAble ? m_changed.subscribe(std::move(changed)) : Subscription();
    }
    std::optional<KeyStroke> stroke(const HardwarePress& press) const override {
        const auto found = m_strokes.find(press.key);
        if (found == m_strokes.end() || followers() == 0)
            return std::nullopt;
        KeyStroke stroke = found->second;
        stroke.modifiers = Modifiers(press.state);
        return stroke;
    }
    std::optional<PrintedKeys> printed() const override { return m_printed; }

  private:
    bool m_isAble = true;
    std::map<std::uint32_t, KeyStroke> m_strokes;
    std::optional<PrintedKeys> m_printed;
    CountedEvent<> m_changed;
};

} // namespace quillon
