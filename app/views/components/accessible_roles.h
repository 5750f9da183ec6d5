#pragma once

#include <QWidget>

namespace quillon {

/// What a widget is to a screen reader.
enum class ReadAs {
    text,       ///< one text, by its name
    decoration, ///< nothing to read
    group,      ///< holds other elements and never has the focus itself
    panel,      ///< a window of its own that bears the name of what it holds
    notice,     ///< one message, by its name; read aloud by itself when it shows
};

/// To be said first thing when the widget is made.
void readAs(QWidget& widget, ReadAs role);

} // namespace quillon
