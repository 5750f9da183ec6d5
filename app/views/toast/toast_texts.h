#pragma once

#include <QString>

namespace quillon {

/// The sentences of the toast, whole and ready to be translated.
namespace ToastTexts {

/// Over the keys and the command.
QString caption();
/// "Next time: Control S for Save": the toast as it is read aloud. `keys` are the shortcut's, spoken.
QString spoken(const QString& keys, const QString& title);

} // namespace ToastTexts

} // namespace quillon
