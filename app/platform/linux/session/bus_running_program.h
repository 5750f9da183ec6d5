#pragma once

#include "session_bus.h"
#include "session_kind.h"

#include <quillon/app/ports/running_program.h>
#include <quillon/app/ports/watching.h>

#include <QDBusMessage>
#include <QVariantList>

#include <optional>
#include <string>
#include <utility>

namespace quillon {

/// The running program, found by its name on the session bus.
class BusRunningProgram final : public RunningProgram {
  public:
    /// `bus` outlives it. `activationToken` is the desktop's proof that the user asked for this process, ""
    /// for none; it goes along with what is asked of the other.
    explicit BusRunningProgram(const SessionBus& bus, std::string activationToken = {})
        : m_bus(bus), m_activationToken(std::move(activationToken)) {}

    Answer ask(ProgramRequest request) override;
    Answer askForPractice(const std::string& bundleID) override;

    /// What it notices at this moment; absent when it does not run or does not answer. Waits within bounds.
    std::optional<Watching> watching() const;
    /// Whether a tray shows its icon; absent likewise.
    std::optional<bool> isInTray() const;

  private:
    QDBusMessage call(const QString& operation, const QVariantList& arguments = {}) const;
    QDBusMessage send(ProgramRequest request) const;
    std::optional<bool> askWhether(const QString& question) const;

    const SessionBus& m_bus;
    std::string m_activationToken;
};

/// What the launcher that started this process passed on as that proof; "" when it passed none.
std::string activationTokenOf(const Environment& environment = processEnvironment);

} // namespace quillon
