#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/themed_widget.h>

#include <QScrollArea>

namespace quillon {

class WelcomeStep;

/// The welcome: asks for the permission to read menus, tells how the overlay is opened and what stays on the
/// machine. Notices by itself when the permission is given.
class WelcomeView : public ThemedWidget {
    Q_OBJECT

  public:
    /// Both outlive the view.
    WelcomeView(AppModel& model, ThemeSource& themes, QWidget* parent = nullptr);

    /// All of it, where the screen has the room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void themeChanged() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* makeSteps();
    QWidget* makeHeader();
    QWidget* makePermission();
    QWidget* makeFooter();
    void modelChanged(ModelField field);
    void trustChanged();
    void triggerChanged();
    void finish();
    void close();

    AppModel& m_model;
    QScrollArea* m_scroll;
    WelcomeStep* m_allow;
    WelcomeStep* m_hold;
    WelcomeStep* m_privacy;
    QWidget* m_permissionButtons;
    ProminentButton* m_ask;
    PlainButton* m_openSettings;
    QWidget* m_allowed;
    QWidget* m_footer;
    PlainButton* m_later;
    ProminentButton* m_done;
    Subscription m_modelChange;
};

} // namespace quillon
