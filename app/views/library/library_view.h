#pragma once

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/cheat_sheet_exports.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/views/components/app_icon_cache.h>
#include <quillon/app/views/components/search_box.h>
#include <quillon/app/views/components/themed_widget.h>
#include <quillon/kit/base/subscription.h>

#include <QMenu>
#include <QPointer>
#include <QStackedWidget>

#include <string>

namespace quillon {

class AppList;
class MessageView;
class LibraryDetail;
class NoteEditor;
class SheetExport;
class ToolbarButton;

/// The Library: beside the list of applications that were read, everything about the chosen one.
class LibraryView : public ThemedWidget {
    Q_OBJECT

  public:
    /// What it needs beside the model. All of it outlives the view.
    struct Needs {
        AppIconCache& icons;
        const Clock& clock;
        CheatSheetExports& exports;
    };
    LibraryView(AppModel& model, ThemeSource& themes, const Needs& needs, QWidget* parent = nullptr);

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
    void makeSheetMenu();
    void modelChanged(ModelField field);
    void refresh();
    void search(const QString& query);
    void showSelection();
    /// Lets the user write the note of a command of the shown application.
    void editNote(const std::string& entryID, const QString& title);
    void wearTheme();

    AppModel& m_model;
    std::string m_selection;
    QStackedWidget* m_sidebar;
    AppList* m_list;
    MessageView* m_noApps;
    SearchBox* m_search;
    ToolbarButton* m_practice;
    ToolbarButton* m_cheatSheet;
    QMenu* m_sheetMenu;
    SheetExport* m_export;
    QPointer<NoteEditor> m_noteEditor;
    QStackedWidget* m_pane;
    MessageView* m_noChoice;
    LibraryDetail* m_detail;
    Subscription m_modelChange;
};

} // namespace quillon
