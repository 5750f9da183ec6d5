#include "appcast_updates.h"

#include <utility>

namespace quillon {

AppcastUpdates::AppcastUpdates(ReleaseLook::Needs needs, UpdateNotices& notices, const ReleaseSource& source)
    : m_feedAddress(source.feedAddress), m_notices(notices), m_look(std::move(needs), source) {}

void AppcastUpdates::checkForUpdates() {
    if (m_feedAddress.empty()) {
        m_notices.tell(UpdateNotice::withSystem);
        return;
    }
    m_look.look([this](const LookResult& result) {
        if (const auto* const release = std::get_if<Release>(&result))
            m_notices.offer(*release, Occasion::asked);
        else
            m_notices.tell(std::get<UpdateNotice>(result));
    });
}

} // namespace quillon
