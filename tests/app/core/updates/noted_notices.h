#pragma once

#include <quillon/app/core/updates/update_notices.h>

#include <string>
#include <vector>

namespace quillon {

/// Notices of which only is noted what was told.
class NotedNotices final : public UpdateNotices {
  public:
    void tell(UpdateNotice notice) override { told.push_back(notice); }
    void offer(const Release& release, Occasion occasion) override {
        offered.push_back(release.shownVersion);
        lastOccasion = occasion;
    }

    std::vector<UpdateNotice> told;
    std::vector<std::string> offered;
    Occasion lastOccasion = Occasion::asked;
};

} // namespace quillon
