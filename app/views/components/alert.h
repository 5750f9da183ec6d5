#pragma once

#include "theme_source.h"

#include <QDialog>

namespace quillon {

/// What an alert says.
struct AlertWords {
    QString title;
    QString message;
    QString close; ///< on its button
};

/// Tells of something that went wrong, until it is closed: by its button, Return or Esc.
class Alert : public QDialog {
    Q_OBJECT

  public:
    Alert(ThemeSource& themes, const AlertWords& words, QWidget* parent);
};

} // namespace quillon
