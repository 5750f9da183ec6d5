#pragma once

#include "app_list_model.h"

#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/kit/base/subscription.h>

#include <QListView>

#include <string>
#include <vector>

namespace quillon {

/// The Library's list of applications, of which one is chosen or none.
class AppList : public QListView {
    Q_OBJECT

  public:
    /// Both outlive it.
    AppList(ThemeSource& themes, AppIconCache& icons, QWidget* parent = nullptr);

    /// Shows these; the one with the identifier `chosen` is chosen from now on, none where it is not there.
    void setApps(std::vector<LibraryApp> apps, const std::string& chosen);

  Q_SIGNALS:
    /// The user chose this application; "" for none.
    void chosen(const std::string& bundleID);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void tellChoice();
    void wearTheme();

    ThemeSource& m_themes;
    AppListModel* m_apps;
    bool m_isTheirChoice = true; ///< what is selected was selected by the user
    Subscription m_themeChange;
};

} // namespace quillon
