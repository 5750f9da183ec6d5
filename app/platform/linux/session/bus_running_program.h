#pragma once

#include "session_bus.h"

#include <quillon/app/ports/running_program.h>

namespace quillon {

/// The running program, found by its name on the session bus.
class BusRunningProgram final : public RunningProgram {
  public:
    /// `bus` outlives it.
    explicit BusRunningProgram(const SessionBus& bus) : m_bus(bus) {}

    Answer ask(ProgramRequest request) override;

  private:
    const SessionBus& m_bus;
};

} // namespace quillon
