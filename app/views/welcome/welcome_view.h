#pragma once

#include "welcome_needs.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/prominent_button.h>
#include <quillon/app/views/components/scroll_pane.h>
#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

class WelcomeSteps;

/// The welcome: asks for the permission to read menus, tells how the overlay is opened and what stays on the
/// machine. Notices by itself when the permission is given.
class WelcomeView : public ThemedWidget {
    Q_OBJECT

  public:
    /// All of them outlive the view.
    WelcomeView(AppModel& model, ThemeSource& themes, const WelcomeNeeds& needs, QWidget* parent = nullptr);

    /// All of it, where the screen has the room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void themeChanged() override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* makeFooter();
    void finish();
    void makeRoom();
    void close();

    AppModel& m_model;
    WelcomeSteps* m_steps;
    ScrollPane* m_scroll;
    QWidget* m_footer;
    PlainButton* m_later;
    ProminentButton* m_done;
};

} // namespace quillon
