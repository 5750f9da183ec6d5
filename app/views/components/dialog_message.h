#pragma once

#include "symbols.h"
#include "theme_source.h"

#include <QHBoxLayout>
#include <QWidget>

namespace quillon {

/// What a small dialog says, from the top: a title and a message beside a symbol. For the dialog's layout;
/// its widgets are the dialog's.
QHBoxLayout* dialogMessage(
    ThemeSource& themes, Symbol symbol, const QString& title, const QString& message, QWidget* dialog);

} // namespace quillon
