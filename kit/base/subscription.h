#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace quillon {

/// Something that lasts as long as this handle: a callback, a timer, an observation. Ends when the handle is
/// destroyed, assigned over or reset; an empty handle stands for nothing.
class [[nodiscard]] Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : m_end(std::move(end)) {}
    Subscription(Subscription&& other) noexcept : m_end(std::exchange(other.m_end, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            reset();
            m_end = std::exchange(other.m_end, nullptr);
        }
        return *this;
    }
    ~Subscription() { reset(); }

    void reset() {
        if (const auto end = std::exchange(m_end, nullptr))
            end();
    }
    explicit operator bool() const { return static_cast<bool>(m_end); }

  private:
    std::function<void()> m_end;
};

/// Callbacks that are called together. Of one thread. Callbacks may subscribe, end subscriptions (their own
/// too) and destroy the event while it is being emitted; a callback that ended is not called any more.
template <class... Arguments>
class Event {
  public:
    using Callback = std::function<void(Arguments...)>;

    Subscription subscribe(Callback callback) {
        const std::uint64_t key = m_state->next++;
        m_state->callbacks.emplace(key, std::make_shared<const Callback>(std::move(callback)));
        return Subscription([state = std::weak_ptr<State>(m_state), key] {
            if (const auto alive = state.lock())
                alive->callbacks.erase(key);
        });
    }

    void emit(Arguments... arguments) const {
        const std::shared_ptr<State> state = m_state;
        const std::uint64_t end = state->next;
        for (auto it = state->callbacks.begin(); it != state->callbacks.end() && it->first < end;) {
            const std::uint64_t key = it->first;
            const std::shared_ptr<const Callback> callback = it->second;
            (*callback)(arguments...);
            it = state->callbacks.upper_bound(key);
        }
    }

    bool isObserved() const { return !m_state->callbacks.empty(); }

  private:
    struct State {
        std::uint64_t next = 0;
        std::map<std::uint64_t, std::shared_ptr<const Callback>> callbacks;
    };
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace quillon
