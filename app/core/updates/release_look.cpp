#include "release_look.h"

#include "appcast.h"

#include <utility>

namespace quillon {

LookResult resultOf(const FeedAnswer& answer, const ReleaseVersion& own) {
    switch (stateOfFeed(answer.status)) {
    case FeedState::absent: return UpdateNotice::upToDate;
    case FeedState::failed: return UpdateNotice::unreachable;
    case FeedState::reachable: break;
    }
    const auto releases = Appcast::read(answer.body);
    if (!releases)
        return UpdateNotice::unreadable;
    if (auto newer = newerRelease(*releases, own))
        return *std::move(newer);
    return UpdateNotice::upToDate;
}

ReleaseLook::ReleaseLook(Needs needs, const ReleaseSource& source)
    : m_ask(std::move(needs.ask)),
      m_request{
          .address = QUrl(QString::fromStdString(source.feedAddress)),
          .method = FeedMethod::get,
          .sender = source.sender()},
      m_own(ReleaseVersion::fromText(source.version).value_or(ReleaseVersion())),
      m_job(needs.background, needs.timers) {}

void ReleaseLook::look(std::function<void(LookResult)> done) {
    if (isLooking())
        return;
    auto job = [ask = m_ask, request = m_request, own = m_own, done](std::stop_token stop) {
        return [done, result = resultOf(ask(request, stop), own)] { done(result); };
    };
    m_job.start(std::move(job), limit, [done] { done(UpdateNotice::unreachable); });
}

} // namespace quillon
