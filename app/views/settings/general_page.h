#pragma once

#include "settings_page.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/launcher_key.h>
#include <quillon/app/ports/session_start.h>
#include <quillon/app/views/components/drop_down.h>
#include <quillon/app/views/components/figure_label.h>
#include <quillon/app/views/components/form_row.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/step_slider.h>
#include <quillon/app/views/components/switch_control.h>

namespace quillon {

/// How the overlay is opened, how keys are shown, when the program starts and what it may read.
class GeneralPage : public SettingsPage {
    Q_OBJECT

  public:
    /// All of them outlive the page.
    GeneralPage(
        AppModel& model, ThemeSource& themes, SessionStart& sessionStart, LauncherKey& launcherKey,
        QWidget* parent = nullptr);

    DropDown& trigger() { return *m_trigger; }
    StepSlider& holdTime() { return *m_holdTime; }
    DropDown& keyLabels() { return *m_keyLabels; }
    SwitchControl& start() { return *m_start; }
    PlainButton& allow() { return *m_allow; }
    PlainButton& useOther() { return *m_useOther; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    FormRow* makeTrigger();
    FormRow* makeHoldTime();
    FormRow* makeKeyLabels();
    FormRow* makeStart();
    FormRow* makeAccessibility();
    QWidget* makeLauncherNotice(QWidget* parent);

    void modelChanged(ModelField field);
    /// What the key is called in sentences.
    QString labelOf(TriggerKey key) const;
    void triggerChanged();
    void holdDelayChanged();
    void trustChanged();
    void startRequested(bool on);
    void refreshStart();

    AppModel& m_model;
    SessionStart& m_sessionStart;
    LauncherKey& m_launcherKey;
    DropDown* m_trigger = nullptr;
    ThemedLabel* m_usingTheKey = nullptr;
    QWidget* m_launcherNotice = nullptr;
    ThemedLabel* m_opensLauncher = nullptr;
    PlainButton* m_useOther = nullptr;
    StepSlider* m_holdTime = nullptr;
    FigureLabel* m_seconds = nullptr;
    DropDown* m_keyLabels = nullptr;
    SwitchControl* m_start = nullptr;
    ThemedLabel* m_startProblem = nullptr;
    PlainButton* m_allow = nullptr;
    QWidget* m_allowed = nullptr;
    Subscription m_modelChange;
    Subscription m_launcherChange;
};

} // namespace quillon
