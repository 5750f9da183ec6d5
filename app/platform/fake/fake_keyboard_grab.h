#pragma once

#include <quillon/app/ports/keyboard_grab.h>

#include <memory>
#include <utility>

namespace quillon {

/// A keyboard that is given when a test says so.
class FakeKeyboardGrab final : public KeyboardGrab {
  public:
    Subscription take(std::uint64_t, std::function<void()> taken) override {
        if (!m_isAble)
            return {};
        m_state->wanted = true;
        m_state->taken = std::move(taken);
        ++m_asked;
        if (m_givesAtOnce)
            give();
        return Subscription([state = m_state] { *state = {}; });
    }

    /// Makes it one that cannot.
    void disable() { m_isAble = false; }
    /// From now on it is given only by `give`.
    void keep() { m_givesAtOnce = false; }
    void give() {
        if (const auto taken = std::exchange(m_state->taken, nullptr)) {
            m_state->has = true;
            taken();
        }
    }
    bool isWanted() const { return m_state->wanted; }
    bool isTaken() const { return m_state->has; }
    /// How often it was asked for.
    int asked() const { return m_asked; }

  private:
    struct State {
        bool wanted = false;
        bool has = false;
        std::function<void()> taken;
    };
    bool m_isAble = true;
    bool m_givesAtOnce = true;
    int m_asked = 0;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace quillon
