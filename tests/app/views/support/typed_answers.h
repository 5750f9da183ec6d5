#pragma once

#include <quillon/app/platform/fake/fake_key_reading.h>

#include <QString>

namespace quillon {

/// Makes every key with a letter, and those that work a window, ones that the desktop tells; their numbers
/// are the toolkit's own.
void defineKeys(FakeKeyReading& keys);

/// Presses a key and lets it go, as the window system tells it to whatever has the keyboard.
void typeKey(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);

} // namespace quillon
