#pragma once

#include <quillon/app/platform/linux/session/session_bus.h>
#include <quillon/app/ports/application_list.h>

namespace quillon {

/// The applications of a Linux desktop: those that are on the accessibility bus, with their windows where an
/// X server tells.
class LinuxApplicationList final : public ApplicationList {
  public:
    /// `session` outlives it.
    explicit LinuxApplicationList(const SessionBus& session) : m_session(session) {}

    std::optional<std::string> obstacle() override;
    std::vector<ListedApp> apps() override;
    std::optional<RunningApp> front() override;

  private:
    const SessionBus& m_session;
};

} // namespace quillon
