#pragma once

#include "welcome_needs.h"
#include "welcome_note.h"
#include "welcome_step.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/prominent_button.h>

#include <QStringList>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace quillon {

/// The welcome's greeting and its three steps, with what this desktop has to be told beside them: which
/// applications have to be restarted, that the trigger key opens the launcher too, that there is no tray.
class WelcomeSteps : public ThemedWidget {
    Q_OBJECT

  public:
    /// How often it looks again for applications that have to be restarted.
    static constexpr Seconds lookInterval{3.0};
    /// How long a tray has to come up before it is said that there is none.
    static constexpr Seconds patienceForTray{3.0};

    /// All of them outlive the steps.
    WelcomeSteps(AppModel& model, ThemeSource& themes, const WelcomeNeeds& needs, QWidget* parent = nullptr);

    /// The button that the user has to press now; null when there is none.
    QWidget* askButton() const;

  Q_SIGNALS:
    /// It needs more or less room than before.
    void partsChanged();
    /// The button that had the keyboard is gone.
    void keyboardLost();

  private:
    void addHeader();
    WelcomeStep* addStep(int number);
    QWidget* makePermission();
    QWidget* makeAllowed(QWidget* parent);
    void addNotes();
    void modelChanged(ModelField field);
    void trustChanged();
    void triggerChanged();
    void openSettings();
    void lookForSilentApps();
    void showSilentApps(const std::vector<std::string>& names);
    void lookForTray();
    void setShown(QWidget& part, bool shown);

    AppModel& m_model;
    WelcomeNeeds m_needs;
    QVBoxLayout* m_column;
    WelcomeStep* m_allow;
    WelcomeStep* m_hold;
    ThemedLabel* m_places; ///< where the keys are on the keyboard
    QWidget* m_buttons;
    ProminentButton* m_ask;
    PlainButton* m_openSettings;
    QWidget* m_allowed;
    WelcomeNote* m_restart;
    WelcomeNote* m_launcher;
    WelcomeNote* m_noTray;
    QStringList m_restartNames;
    Subscription m_modelChange;
    Subscription m_launcherChange;
    Subscription m_trayChange;
    Subscription m_trayPatience;
    bool m_trayIsLate = false;
    Subscription m_look;
    Subscription m_lookTimer;
};

} // namespace quillon
