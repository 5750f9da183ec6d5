#pragma once

#include "settings_page.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/confirmation.h>
#include <quillon/app/views/components/destructive_button.h>

#include <QPointer>

namespace quillon {

/// Where that is which the program learned, and the button that takes it away.
class PrivacyPage : public SettingsPage {
    Q_OBJECT

  public:
    /// `dataFolder` as it is shown; empty where nothing is kept. Model and themes outlive the page.
    PrivacyPage(AppModel& model, ThemeSource& themes, const QString& dataFolder, QWidget* parent = nullptr);

    DestructiveButton& erase() { return *m_erase; }
    /// The confirmation that is open; null for none.
    Confirmation* confirmation() const { return m_confirmation; }

  private:
    void confirmErase();

    AppModel& m_model;
    DestructiveButton* m_erase;
    QPointer<Confirmation> m_confirmation;
};

} // namespace quillon
