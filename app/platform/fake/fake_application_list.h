#pragma once

#include <quillon/app/ports/application_list.h>

namespace quillon {

/// Applications that were told beforehand.
class FakeApplicationList final : public ApplicationList {
  public:
    std::optional<std::string> obstacle() override { return problem; }
    std::vector<ListedApp> apps() override { return problem ? std::vector<ListedApp>{} : running; }
    std::optional<RunningApp> front() override { return inFront; }

    std::optional<std::string> problem;
    std::vector<ListedApp> running;
    std::optional<RunningApp> inFront;
};

} // namespace quillon
