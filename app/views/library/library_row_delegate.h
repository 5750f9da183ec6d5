#pragma once

#include "library_rows.h"

#include <quillon/app/views/components/key_caps.h>
#include <quillon/app/views/components/theme.h>

#include <QStyledItemDelegate>

#include <vector>

namespace quillon {

/// Draws the rows of an application: a command's title, counts, note and keys, headings, statistics. Tells a
/// command in a tooltip where its row has no room for it.
class LibraryRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// Made anew for another theme.
    LibraryRowDelegate(Theme theme, QObject* parent);

    /// Lets the counts of all rows stand in one column, beside the widest of these rows' keys.
    void makeRoomForKeys(const std::vector<LibraryRow>& rows);

    void
    paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(
        QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

  private:
    /// Where the parts of a command stand, from left to right.
    struct Places {
        QRect title;
        QRect note;
        QRect counts;
        QRect keys;
    };
    Places placesOf(const LibraryRow& row, const QRect& box) const;

    void paintFocus(QPainter& painter, const QStyleOptionViewItem& option) const;
    void paintCommand(QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const;
    void paintTotals(QPainter& painter, const QStyleOptionViewItem& option, const LibraryRow& row) const;

    Theme m_theme;
    QFont m_countsFont;
    QFont m_noteFont;
    KeyCaps m_keys;
    int m_keysWidth = 0;
};

} // namespace quillon
