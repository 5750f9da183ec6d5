#pragma once

#include <quillon/app/platform/linux/applications/app_identifier.h>
#include <quillon/app/platform/linux/x11/x11_connection.h>
#include <quillon/app/ports/background.h>
#include <quillon/app/ports/silent_apps.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Applications that have windows and look for the accessibility bus only when they begin, and are not on it.
class LinuxSilentApps final : public SilentApps {
  public:
    struct Needs {
        Background& background;
        AppIdentifier& identifier;
        /// What the windows on the screen tell of their applications. Called on the main thread.
        std::function<std::vector<WindowFacts>()> windows;
        /// The processes on the accessibility bus; absent when it cannot be reached. Called off the main
        /// thread, may wait.
        std::function<std::optional<std::vector<std::int64_t>>()> sharing;
        /// The folder of the running processes.
        std::string processes = "/proc";
        /// This program, which is none of them.
        std::int64_t ownPid = 0;
    };

    /// Of the windows of this X server and of the accessibility bus. Whatever is referred to outlives it.
    static Needs
    ofSession(std::shared_ptr<X11Connection> x11, Background& background, AppIdentifier& identifier);

    explicit LinuxSilentApps(Needs needs) : m_needs(std::move(needs)) {}

    Subscription look(std::function<void(std::vector<std::string> names)> found) override;

  private:
    std::vector<std::string> namesOf(const std::vector<WindowFacts>& windows) const;

    Needs m_needs;
};

} // namespace quillon
