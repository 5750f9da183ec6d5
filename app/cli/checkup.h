#pragma once

#include "terminal_text.h"

#include <quillon/app/ports/diagnosis.h>

#include <vector>

namespace quillon {

/// The checks as a table for the terminal, each remedy on the line below its check.
TerminalText checkupText(const std::vector<Check>& checks);

/// Whether nothing is missing.
bool allWell(const std::vector<Check>& checks);

} // namespace quillon
