#pragma once

#include "view_desk.h"

#include <quillon/kit/menu/app_sheet.h>

namespace quillon {

/// Brings an application to the front whose menus hold the commands of this sheet, and has them read, so that
/// the model keeps a sheet of it. Their keys are characters.
void readApp(ViewDesk& desk, const AppSheet& sheet);

} // namespace quillon
