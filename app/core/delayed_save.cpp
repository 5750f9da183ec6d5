#include "delayed_save.h"

namespace quillon {

void DelayedSave::schedule() {
    m_pending = m_timers.after(delay, [this] { flush(); });
}

void DelayedSave::flush() {
    if (!m_pending)
        return;
    m_pending.reset();
    m_save();
}

} // namespace quillon
