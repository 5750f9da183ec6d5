#pragma once

#include <quillon/app/platform/linux/session/session_bus.h>
#include <quillon/app/ports/application_list.h>
#include <quillon/app/ports/diagnosis.h>

namespace quillon {

/// Looks at everything that this program needs of a Linux desktop.
class LinuxDiagnosis final : public Diagnosis {
  public:
    /// Both outlive it.
    LinuxDiagnosis(const SessionBus& session, ApplicationList& applications)
        : m_session(session), m_applications(applications) {}

    std::vector<Check> checks() override;

  private:
    const SessionBus& m_session;
    ApplicationList& m_applications;
};

} // namespace quillon
