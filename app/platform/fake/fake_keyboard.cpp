#include "fake_keyboard.h"

#include <limits>
#include <utility>

namespace quillon {

class FakeKeyboard::Ages final : public InputAges {
  public:
    Ages(const FakeClock& clock, std::shared_ptr<const LastInputs> last, std::shared_ptr<std::size_t> live)
        : m_clock(clock), m_last(std::move(last)), m_live(std::move(live)) {
        ++*m_live;
    }
    Ages(const Ages&) = delete;
    Ages& operator=(const Ages&) = delete;
    ~Ages() override { --*m_live; }

    Seconds sinceLast(InputKind kind) const override {
        const auto found = m_last->find(kind);
        if (found == m_last->end() || found->second < m_begin)
            return Seconds(std::numeric_limits<double>::infinity());
        return secondsBetween(found->second, m_clock.steadyNow());
    }

  private:
    const FakeClock& m_clock;
    const Instant m_begin = m_clock.steadyNow();
    std::shared_ptr<const LastInputs> m_last;
    std::shared_ptr<std::size_t> m_live;
};

FakeKeyboard::FakeKeyboard(const FakeClock& clock) : m_clock(clock) {}

FakeKeyboard::~FakeKeyboard() = default;

Subscription FakeKeyboard::onModifiersChanged(std::function<void(Modifiers)> callback) {
    return m_changed.subscribe(std::move(callback));
}

std::unique_ptr<InputAges> FakeKeyboard::observeInput() {
    return std::make_unique<Ages>(m_clock, m_last, m_observations);
}

void FakeKeyboard::set(Modifiers down) {
    if (std::exchange(m_down, down) != down)
        m_changed.emit(down);
}

void FakeKeyboard::input(InputKind kind) {
    m_last->insert_or_assign(kind, m_clock.steadyNow());
}

} // namespace quillon
