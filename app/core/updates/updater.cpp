#include "updater.h"

#include <utility>

namespace quillon {

Updater::Updater(Needs needs) : m_needs(std::move(needs)), m_probe(m_needs.background, m_needs.timers) {}

void Updater::checkForUpdates() {
    if (checking())
        return;
    const std::string address = m_needs.framework.feedAddress();
    if (address.empty()) {
        m_needs.framework.checkForUpdates();
        return;
    }
    const FeedRequest request{
        .address = QUrl(QString::fromStdString(address)),
        .method = FeedMethod::head,
        .sender = m_needs.sender};
    auto job = [this, ask = m_needs.ask, request](std::stop_token stop) {
        return [this, state = stateOfFeed(ask(request, stop).status)] { probed(state); };
    };
    m_probe.start(std::move(job), probeLimit, [this] { probed(FeedState::failed); });
}

void Updater::probed(FeedState state) {
    switch (state) {
    case FeedState::reachable: m_needs.framework.checkForUpdates(); break;
    case FeedState::absent: m_needs.notices.tell(UpdateNotice::upToDate); break;
    case FeedState::failed: m_needs.notices.tell(UpdateNotice::unreachable); break;
    }
}

} // namespace quillon
