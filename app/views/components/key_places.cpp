#include "key_places.h"

#include "text.h"

#include <quillon/kit/shortcut/modifiers.h>

#include <QCoreApplication>

namespace quillon {

QString placesOfKeys(const Vocabulary& vocabulary) {
    if (vocabulary.commandKey.isEmpty())
        return {};
    return QCoreApplication::translate("KeyPlaces", "%1 is %2, %3 is %4, %5 is %6.")
        .arg(
            text(Modifiers::command.glyphs()), vocabulary.commandKey, text(Modifiers::option.glyphs()),
            vocabulary.optionKey, text(Modifiers::control.glyphs()), vocabulary.controlKey);
}

} // namespace quillon
