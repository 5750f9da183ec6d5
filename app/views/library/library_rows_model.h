#pragma once

#include "library_rows.h"

#include <quillon/app/views/components/theme_source.h>

#include <QAbstractListModel>

#include <vector>

namespace quillon {

/// The rows of one application for a list view.
class LibraryRowsModel : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `themes` says how keys are told to screen readers, and outlives the model.
    LibraryRowsModel(ThemeSource& themes, QObject* parent);

    /// What became of the rows: they tell of the same as before, or of others.
    enum class Change { within, others };
    /// Where these tell of the same as those before, only what changed is told: the view keeps its place.
    Change setRows(std::vector<LibraryRow> rows);
    const std::vector<LibraryRow>& rows() const { return m_rows; }
    const LibraryRow& row(const QModelIndex& index) const {
        return m_rows[static_cast<std::size_t>(index.row())];
    }
    /// Of the row that tells of the same; invalid where there is none.
    QModelIndex indexOf(const LibraryRow& row) const;
    /// Whether the row is a command's.
    bool hasButtons(const QModelIndex& index) const { return row(index).kind == LibraryRow::Kind::command; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    ThemeSource& m_themes;
    std::vector<LibraryRow> m_rows;
};

} // namespace quillon
