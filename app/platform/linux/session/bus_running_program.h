#pragma once

#include "session_bus.h"

#include <quillon/app/ports/running_program.h>
#include <quillon/app/ports/watching.h>

#include <QDBusMessage>

#include <optional>

namespace quillon {

/// The running program, found by its name on the session bus.
class BusRunningProgram final : public RunningProgram {
  public:
    /// `bus` outlives it.
    explicit BusRunningProgram(const SessionBus& bus) : m_bus(bus) {}

    Answer ask(ProgramRequest request) override;

    /// What it notices at this moment; absent when it does not run or does not answer. Waits within bounds.
    std::optional<Watching> watching() const;
    /// Whether a tray shows its icon; absent likewise.
    std::optional<bool> isInTray() const;

  private:
    QDBusMessage call(const QString& operation) const;
    std::optional<bool> askWhether(const QString& question) const;

    const SessionBus& m_bus;
};

} // namespace quillon
