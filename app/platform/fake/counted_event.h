#pragma once

#include <quillon/kit/base/subscription.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

namespace quillon {

/// An event that knows how many listen to it, so that a test can see what was started and not ended.
template <class... Arguments>
class CountedEvent {
  public:
    Subscription subscribe(std::function<void(Arguments...)> callback) {
        auto inner = std::make_shared<Subscription>(m_event.subscribe(std::move(callback)));
        ++*m_live;
        return Subscription([inner = std::move(inner), live = m_live] {
            inner->reset();
            --*live;
        });
    }
    void emit(Arguments... arguments) const { m_event.emit(arguments...); }
    std::size_t listeners() const { return *m_live; }

  private:
    Event<Arguments...> m_event;
    std::shared_ptr<std::size_t> m_live = std::make_shared<std::size_t>(0);
};

} // namespace quillon
