#include "library_rows_model.h"

#include "library_texts.h"

#include <quillon/app/views/components/keys_view.h>

#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

/// A row as it is read aloud: "Save, ⌃S, pinned, 14 clicked · 3 typed, the note".
QString spoken(const LibraryRow& row, const Theme& theme) {
    QStringList parts{row.text};
    if (row.shortcut)
        parts << keysText(*row.shortcut, theme);
    if (row.pinned)
        parts << LibraryTexts::isPinned();
    if (row.muted)
        parts << LibraryTexts::isMuted();
    for (const QString& part : {row.counts, row.note})
        if (!part.isEmpty())
            parts << part;
    return parts.join(QStringLiteral(", "));
}

bool tellOfTheSame(const std::vector<LibraryRow>& one, const std::vector<LibraryRow>& other) {
    return std::ranges::equal(one, other, &LibraryRow::isSameAs);
}

} // namespace

LibraryRowsModel::LibraryRowsModel(ThemeSource& themes, QObject* parent)
    : QAbstractListModel(parent), m_themes(themes) {}

LibraryRowsModel::Change LibraryRowsModel::setRows(std::vector<LibraryRow> rows) {
    if (!tellOfTheSame(rows, m_rows)) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return Change::others;
    }
    const std::vector<LibraryRow> before = std::exchange(m_rows, std::move(rows));
    for (std::size_t at = 0; at < before.size(); ++at)
        if (before[at] != m_rows[at]) {
            const QModelIndex changed = index(static_cast<int>(at));
            Q_EMIT dataChanged(changed, changed);
        }
    return Change::within;
}

QModelIndex LibraryRowsModel::indexOf(const LibraryRow& row) const {
    const auto same = std::ranges::find_if(m_rows, [&](const LibraryRow& one) { return one.isSameAs(row); });
    return same == m_rows.end() ? QModelIndex() : index(static_cast<int>(same - m_rows.begin()));
}

int LibraryRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant LibraryRowsModel::data(const QModelIndex& index, int role) const {
    const LibraryRow& shown = row(index);
    switch (role) {
    case Qt::DisplayRole: return shown.text;
    case Qt::AccessibleTextRole: return spoken(shown, m_themes.theme());
    default: return {};
    }
}

Qt::ItemFlags LibraryRowsModel::flags(const QModelIndex&) const {
    return Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

} // namespace quillon
