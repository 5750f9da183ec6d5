#include "welcome_at_start.h"

namespace quillon {

void WelcomeAtStart::begin() {
    m_trust.wait(m_model.onboarded() ? patienceOnceOnboarded : patience, [this] {
        if (!m_model.onboarded() || !m_model.trusted())
            m_model.requestWindow(WindowName::welcome);
    });
}

} // namespace quillon
