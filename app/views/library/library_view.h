#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/search_box.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/kit/base/subscription.h>

#include <QStackedWidget>

#include <string>

namespace quillon {

class AppList;
class MessageView;
class LibraryDetail;

/// The Library: beside the list of applications that were read, everything about the chosen one.
class LibraryView : public ThemedWidget {
    Q_OBJECT

  public:
    /// All of them outlive it.
    LibraryView(
        AppModel& model, ThemeSource& themes, AppIconCache& icons, const Clock& clock,
        QWidget* parent = nullptr);

    /// The application that is shown; "" for none.
    const std::string& selection() const { return m_selection; }
    void select(const std::string& bundleID);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void themeChanged() override;

  private:
    QWidget* makeSidebar();
    QWidget* makePane();
    void modelChanged(ModelField field);
    void refresh();
    void search(const QString& query);
    void showSelection();
    void wearTheme();

    AppModel& m_model;
    std::string m_selection;
    QStackedWidget* m_sidebar;
    AppList* m_list;
    MessageView* m_noApps;
    SearchBox* m_search;
    QStackedWidget* m_pane;
    MessageView* m_noChoice;
    LibraryDetail* m_detail;
    Subscription m_modelChange;
};

} // namespace quillon
