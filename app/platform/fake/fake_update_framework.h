#pragma once

#include <quillon/app/ports/update_framework.h>

#include <string>

namespace quillon {

/// A framework of which only is noted how often it was asked.
class FakeUpdateFramework final : public UpdateFramework {
  public:
    std::string feedAddress() const override { return address; }
    void checkForUpdates() override { ++checks; }

    std::string address = "https://updates.example.org/appcast.xml";
    int checks = 0;
};

} // namespace quillon
