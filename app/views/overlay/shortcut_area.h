#pragma once

#include "area_layout.h"
#include "row_steps.h"

#include <quillon/app/views/components/nine_patch.h>
#include <quillon/app/views/components/theme_source.h>

#include <QAbstractScrollArea>
#include <QHelpEvent>
#include <QMenu>
#include <QPointer>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// The scrolled cards of shortcuts. One widget that draws what is visible of them; rows and headings are
/// elements of their own to the pointer, the keyboard and screen readers.
class ShortcutArea : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit ShortcutArea(ThemeSource& themes, QWidget* parent = nullptr);

    /// Shows other shortcuts. The row that had the keyboard keeps it if it is still shown, and what is
    /// scrolled to stays where it is.
    void setContent(std::shared_ptr<const PreparedSheet> sheet, AreaContent content);

    const PreparedSheet& sheet() const { return *m_sheet; }
    const AreaContent& content() const { return m_content; }
    const AreaLayout& layout() const { return m_layout; }
    /// Counts up with every other content or layout.
    int generation() const { return m_generation; }

    /// The row that the keyboard acts on, as a position in `layout().rows`.
    std::optional<std::size_t> currentRow() const { return m_current; }
    void setCurrentRow(std::size_t row);

    /// Whether the row's command can be used right now.
    bool isEnabledRow(std::size_t row) const;
    /// Everything that a row tells, as one sentence.
    QString spokenRow(std::size_t row) const;
    /// A row or heading in the viewport's coordinates.
    QRect visualRect(const QRectF& box) const;
    /// The row at this point of the viewport.
    std::optional<std::size_t> rowAt(const QPoint& viewportPosition) const;
    void scrollToTop();
    void scrollByPage(int pages);

    /// Whether the rows' menus lead to the Library. They do at first.
    void offerLibrary(bool offered) { m_libraryIsOffered = offered; }
    /// Opens the row's menu, below it.
    void openRowMenu(std::size_t row);
    /// Takes an open menu of a row off the screen.
    void closeRowMenu();

  Q_SIGNALS:
    /// Of the application that the menu was opened for, which may be another than is shown now.
    void pinToggled(const std::string& bundleID, const std::string& entryID);
    void libraryRequested();
    /// A row's menu is about to open.
    void rowMenuOpening();
    /// The keyboard went up from a row above which there is none.
    void leftUpwards();

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    /// How a row is found again in another content.
    struct RowName {
        std::string id;
        SubmenuInRow submenu = SubmenuInRow::hidden;
    };
    /// A row that is to stay where it is on the screen.
    struct Anchor {
        RowName row;
        double fromTop = 0; ///< of the viewport
    };

    RowName nameOf(std::size_t row) const;
    std::optional<std::size_t> rowNamed(const RowName& name) const;
    std::optional<Anchor> anchor() const;
    void holdFast(const Anchor& anchor);
    void themeChanged();
    const NinePatch& cardPicture();
    void relayout();
    void updateScrollBar();
    void step(RowStep step);
    void reveal(std::size_t row);
    void hover(std::optional<std::size_t> row);
    void updateRow(std::optional<std::size_t> row);
    void showRowMenu(std::size_t row, const QPoint& globalPosition);
    void showTip(const QHelpEvent& event);
    double scrolled() const;
    void paintScrollEdges(QPainter& painter) const;

    ThemeSource& m_themes;
    Subscription m_subscription;
    std::unique_ptr<TextMeasure> m_measure;
    std::optional<NinePatch> m_card;
    std::shared_ptr<const PreparedSheet> m_sheet;
    AreaContent m_content;
    AreaLayout m_layout;
    int m_generation = 0;
    std::optional<std::size_t> m_current;
    std::optional<std::size_t> m_hovered;
    QPointer<QMenu> m_menu;
    bool m_libraryIsOffered = true;
};

} // namespace quillon
