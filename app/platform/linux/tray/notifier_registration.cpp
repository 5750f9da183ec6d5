#include "notifier_registration.h"

#include <utility>

namespace quillon {

NotifierRegistration::Steps NotifierRegistration::begin(Steps steps) {
    m_isRegistering = m_isRegistering || steps.registerItem;
    m_isAsking = m_isAsking || steps.askForHost;
    return steps;
}

NotifierRegistration::Steps NotifierRegistration::watcherCame() {
    watcherLeft();
    return begin({.registerItem = true, .askForHost = true});
}

void NotifierRegistration::watcherLeft() {
    const std::uint64_t next = m_round + 1;
    *this = {};
    m_round = next;
}

NotifierRegistration::Steps NotifierRegistration::hostsChanged() {
    m_hasToAskAgain = m_isAsking;
    return begin({.registerItem = !m_isRegistered && !m_isRegistering, .askForHost = !m_isAsking});
}

void NotifierRegistration::registered(std::uint64_t round, bool isDone) {
    if (round != m_round)
        return;
    m_isRegistering = false;
    m_isRegistered = isDone;
}

NotifierRegistration::Steps NotifierRegistration::hostAnswered(std::uint64_t round, bool hasHost) {
    if (round != m_round)
        return {};
    m_isAsking = false;
    m_hasHost = hasHost;
    return begin({.registerItem = false, .askForHost = std::exchange(m_hasToAskAgain, false)});
}

} // namespace quillon
