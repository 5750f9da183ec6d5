#pragma once

#include "library_rows_model.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/kit/base/subscription.h>

#include <QListView>
#include <QTimer>

#include <string>

namespace quillon {

class LibraryRowDelegate;

/// Everything that the Library says of one application, as one list. Follows the model.
class LibraryDetail : public QListView {
    Q_OBJECT

  public:
    /// All of them outlive it.
    LibraryDetail(AppModel& model, ThemeSource& themes, const Clock& clock, QWidget* parent = nullptr);

    /// The application that is shown; "" for none.
    void setApp(const std::string& bundleID);
    /// Lists only commands that it finds.
    void setQuery(std::string query);

  protected:
    /// Where the list gets the keyboard is seen and read at once.
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// How long ago the menus were read has changed when the user comes back to the window.
    void changeEvent(QEvent* event) override;

  private:
    /// Looks at the model anew, before the next frame.
    void refreshSoon();
    void refresh();
    void wearTheme();

    AppModel& m_model;
    ThemeSource& m_themes;
    const Clock& m_clock;
    LibraryRowsModel* m_rows;
    LibraryRowDelegate* m_delegate = nullptr;
    QTimer m_refresh; ///< runs when something changed
    std::string m_bundleID;
    std::string m_query;
    Subscription m_themeChange;
    Subscription m_modelChange;
    Subscription m_recordChange;
};

} // namespace quillon
