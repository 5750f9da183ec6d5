#pragma once

#include <quillon/app/ports/windows.h>

#include <QString>

namespace quillon {

/// What the titled windows are called, ready to be translated.
namespace WindowTexts {

/// "Quillon Library"
QString title(WindowName name);

} // namespace WindowTexts

} // namespace quillon
