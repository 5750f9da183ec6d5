#pragma once

#include "linux_application_list.h"
#include "linux_diagnosis.h"
#include "logged_menu_reader.h"

#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/app/platform/linux/session/bus_running_program.h>
#include <quillon/app/platform/linux/session/session_bus.h>
#include <quillon/app/ports/platform.h>

#include <optional>
#include <string>

namespace quillon {

/// Linux desktops. Where the session bus does not answer, making one takes the time to find that out.
class LinuxPlatform final : public Platform {
  public:
    ApplicationList& applications() override { return m_applications; }
    MenuReader& menuReader() override { return m_menuReader; }
    Diagnosis& diagnosis() override { return m_diagnosis; }
    RunningProgram& runningProgram() override { return m_runningProgram; }
    std::filesystem::path settingsFile() const override;
    std::filesystem::path dataFolder() const override;

    std::optional<std::string> prepareDisplay() override;
    std::unique_ptr<Instance> makeInstance() override;
    std::unique_ptr<Desktop> openDesktop(Background& background, const Clock& clock) override;
    bool startAnew(char** arguments) override;

  private:
    SessionBus m_session;
    AtspiMenuReader m_menus;
    LoggedMenuReader m_menuReader{m_menus};
    LinuxApplicationList m_applications{m_session};
    LinuxDiagnosis m_diagnosis{m_session, m_applications};
    BusRunningProgram m_runningProgram{m_session, activationTokenOf()};
};

} // namespace quillon
