#pragma once

#include <quillon/app/ports/menu_reader.h>

namespace quillon {

/// Reads the application's menus. One that told no command before it fell silent may only be busy, and a
/// command can wait a little longer than a program with windows to draw: it is asked up to three times. May
/// be called from several threads at once where the reader may.
MenuReading readPatiently(const RunningApp& app, MenuReader& reader);

} // namespace quillon
