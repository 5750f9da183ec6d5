#pragma once

#include "library_row_delegate.h"
#include "library_rows_model.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/views/components/theme_source.h>
#include <quillon/app/views/sheet/searched_sheet.h>
#include <quillon/kit/base/subscription.h>

#include <QListView>
#include <QPersistentModelIndex>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Everything that the Library says of one application, as one list. Follows the model. Commands have buttons
/// in their rows: the keyboard goes to them by Right, back by Left, and presses one by Space or Return.
class LibraryDetail : public QListView {
    Q_OBJECT

  public:
    /// All of them outlive it.
    LibraryDetail(AppModel& model, ThemeSource& themes, const Clock& clock, QWidget* parent = nullptr);

    /// The application that is shown; "" for none.
    void setApp(const std::string& bundleID);
    const std::string& app() const { return m_bundleID; }
    /// Lists only commands that it finds.
    void setQuery(std::string query);

    const LibraryRowsModel& rows() const { return *m_rows; }
    /// Counts up whenever rows came or went.
    int generation() const { return m_generation; }
    /// The button of the current row that the keyboard is at; absent for the row itself.
    std::optional<RowButton> currentButton() const;
    /// Takes the keyboard there.
    void goTo(int row, std::optional<RowButton> button);
    /// In the viewport.
    QRect buttonRect(int row, RowButton button) const;
    /// Pins, mutes, or asks for the note of the command in this row.
    void press(int row, RowButton button);

  Q_SIGNALS:
    /// The note of this command is to be edited.
    void noteWanted(const std::string& entryID, const QString& title);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Where the list gets the keyboard is seen and read at once.
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// How long ago the menus were read has changed when the user comes back to the window.
    void changeEvent(QEvent* event) override;

  private:
    /// A button in a row.
    struct ButtonPlace {
        QPersistentModelIndex index;
        RowButton button;

        bool operator==(const ButtonPlace&) const = default;
    };
    /// What is to stay where it is when rows come and go.
    struct Place {
        std::optional<LibraryRow> top; ///< the first row that is seen
        int offset = 0;                ///< of its upper edge
        std::optional<LibraryRow> current;
    };

    /// Looks at the model anew, before the next frame.
    void refreshSoon();
    void refresh();
    void setRows(std::vector<LibraryRow> rows);
    std::vector<LibraryRow> learned(const AppSheet& sheet) const;
    Place place() const;
    void goBackTo(const Place& place);
    void wearTheme();
    QStyleOptionViewItem optionOf(const QModelIndex& index) const;
    std::optional<ButtonPlace> buttonAt(const QPoint& point) const;
    void setHovered(std::optional<ButtonPlace> place);
    void setButton(std::optional<RowButton> button);
    void mark();
    /// Whether the key was one for the buttons of the current row.
    bool useForButtons(const QKeyEvent& event);

    AppModel& m_model;
    ThemeSource& m_themes;
    const Clock& m_clock;
    LibraryRowsModel* m_rows;
    LibraryRowDelegate* m_delegate;
    QTimer m_refresh; ///< runs when something changed
    QTimer m_prepareSearch;
    std::string m_bundleID;
    std::string m_query;
    SearchedSheet m_sheet;
    int m_generation = 0;
    std::optional<RowButton> m_button; ///< where the keyboard is in rows that have buttons
    std::optional<ButtonPlace> m_hovered;
    std::optional<ButtonPlace> m_pressed;
    Subscription m_themeChange;
    Subscription m_modelChange;
    Subscription m_recordChange;
};

} // namespace quillon
