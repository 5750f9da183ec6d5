#pragma once

#include <quillon/app/ports/background.h>

namespace quillon {

/// For commands that have nothing else to do meanwhile: jobs and continuations run where they are asked for.
class InlineBackground final : public Background {
  public:
    Subscription run(Job job) override {
        if (const Continuation continuation = job({}))
            continuation();
        return {};
    }
};

} // namespace quillon
