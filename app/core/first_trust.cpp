#include "first_trust.h"

#include <utility>

namespace quillon {

void FirstTrust::wait(Seconds patience, std::function<void()> then) {
    const auto finish = [this, then = std::move(then)] {
        m_change.reset();
        then();
    };
    if (m_model.trusted())
        patience = Seconds(0);
    m_patience = m_timers.after(patience, finish);
    m_change = m_model.changed.subscribe([this, finish](ModelField field) {
        // A little later, when everything else that the change calls for has been done.
        if (field == ModelField::trusted)
            m_patience = m_timers.after(Seconds(0), finish);
    });
}

void FirstTrust::stop() {
    m_patience.reset();
    m_change.reset();
}

} // namespace quillon
