#pragma once

#include "coach_page.h"
#include "general_page.h"
#include "privacy_page.h"

#include <quillon/app/views/components/symbol_tab_bar.h>

#include <QStackedWidget>

#include <vector>

namespace quillon {

/// The settings, on three tabs. Follows changes from elsewhere.
class SettingsView : public ThemedWidget {
    Q_OBJECT

  public:
    /// What the settings need beyond the model. The ports outlive the view.
    struct Needs {
        SessionStart& sessionStart;
        LauncherKey& launcherKey;
        QString dataFolder; ///< where everything learned is kept, as it is shown; empty for nowhere
    };

    /// Model and themes outlive the view.
    SettingsView(AppModel& model, ThemeSource& themes, const Needs& needs, QWidget* parent = nullptr);

    SymbolTabBar& tabs() { return *m_tabs; }
    GeneralPage& general() { return *m_general; }
    CoachPage& coach() { return *m_coach; }
    PrivacyPage& privacy() { return *m_privacy; }

    /// All of it, where the screen has the room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void addTab(SettingsTab tab, Symbol symbol, QWidget* page);
    void showTab();

    AppModel& m_model;
    SymbolTabBar* m_tabs;
    QStackedWidget* m_stack;
    GeneralPage* m_general;
    CoachPage* m_coach;
    PrivacyPage* m_privacy;
    std::vector<QWidget*> m_pages;
    Subscription m_modelChange;
};

} // namespace quillon
