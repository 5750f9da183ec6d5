#pragma once

#include <quillon/kit/menu/key_words.h>
#include <quillon/kit/shortcut/key_labels.h>
#include <quillon/kit/shortcut/key_names.h>

#include <QString>

#include <optional>

namespace quillon {

/// What keys are called in the program's language.
KeyNames translatedKeyNames();

/// What keys are shown by; absent for symbols.
std::optional<KeyNames> shownNames(KeyLabels labels);

/// The words for keys that searches understand: their names in the program's language and in English.
KeyWords translatedKeyWords();

/// How one modifier is shown in a sentence: "⌘", or by its name "Super".
QString modifierLabel(Modifiers modifier, KeyLabels labels);

} // namespace quillon
