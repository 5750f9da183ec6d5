#pragma once

#include "destructive_button.h"
#include "plain_button.h"
#include "theme_source.h"

#include <QDialog>

namespace quillon {

/// What a confirmation says.
struct ConfirmationWords {
    QString title;
    QString message;
    QString destroy; ///< on the button that does it
    QString cancel;
};

/// Asks before something is taken away for good. Cancels unless the other button is pressed: by Return as
/// it opens, by Esc and by being closed. `accepted` is emitted for the other button.
class Confirmation : public QDialog {
    Q_OBJECT

  public:
    Confirmation(ThemeSource& themes, const ConfirmationWords& words, QWidget* parent);

    DestructiveButton& destroyButton() { return *m_destroy; }
    PlainButton& cancelButton() { return *m_cancel; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    DestructiveButton* m_destroy;
    PlainButton* m_cancel;
};

} // namespace quillon
