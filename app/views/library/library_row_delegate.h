#pragma once

#include "library_row_layout.h"

#include <QStyledItemDelegate>

#include <optional>
#include <vector>

namespace quillon {

/// What the pointer and the keyboard are at, beside the row.
struct RowMarks {
    std::optional<RowButton> hovered = {}; ///< in the row under the pointer
    bool isDown = false;                   ///< it is held down
    std::optional<RowButton> focused = {}; ///< in the current row; absent for the row itself

    bool operator==(const RowMarks&) const = default;
};

/// Draws the rows of an application: a command's title, counts, buttons, note and keys, headings, statistics.
/// Tells in a tooltip what a button does, and of a command what its row has no room for.
class LibraryRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// Made anew for another theme.
    LibraryRowDelegate(Theme theme, QObject* parent);

    /// Makes the column of keys as wide as the widest of these rows' keys.
    void makeRoomForKeys(const std::vector<LibraryRow>& rows) { m_layout.makeRoomForKeys(rows); }
    void setMarks(const RowMarks& marks) { m_marks = marks; }

    /// The button at this point of the list, and where a button is; `option` tells the row's place and the
    /// direction of reading.
    std::optional<RowButton>
    buttonAt(const QPoint& point, const QStyleOptionViewItem& option, const LibraryRow& row) const;
    QRect buttonRect(RowButton button, const QStyleOptionViewItem& option, const LibraryRow& row) const;

    void
    paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(
        QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

  private:
    void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const;
    void paintCommand(QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const;
    void paintButton(
        QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row, RowButton button) const;
    void paintKeys(
        QPainter& painter, const QRect& place, const CommandPlaces& places, const Shortcut& shortcut) const;
    void paintTotals(QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const;
    /// As HTML; empty for none.
    QString tipAt(const QPoint& point, const QStyleOptionViewItem& option, const LibraryRow& row) const;

    Theme m_theme;
    LibraryRowLayout m_layout;
    RowMarks m_marks;
};

} // namespace quillon
