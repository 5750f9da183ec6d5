#pragma once

#include "settings_page.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/switch_control.h>
#include <quillon/app/views/components/themed_label.h>

namespace quillon {

/// What the program notices of its user's work, and answers.
class CoachPage : public SettingsPage {
    Q_OBJECT

  public:
    /// Both outlive the page.
    CoachPage(AppModel& model, ThemeSource& themes, QWidget* parent = nullptr);

    SwitchControl& nudges() { return *m_nudges; }
    SwitchControl& counting() { return *m_counting; }

  private:
    void refresh();

    AppModel& m_model;
    SwitchControl* m_nudges;
    SwitchControl* m_counting;
    ThemedLabel* m_explanation;
    Subscription m_modelChange;
};

} // namespace quillon
