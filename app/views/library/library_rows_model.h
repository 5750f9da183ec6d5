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

    /// Where these have the shape of those before, only what changed is told: the view keeps its place.
    void setRows(std::vector<LibraryRow> rows);
    const std::vector<LibraryRow>& rows() const { return m_rows; }
    const LibraryRow& row(const QModelIndex& index) const {
        return m_rows[static_cast<std::size_t>(index.row())];
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    ThemeSource& m_themes;
    std::vector<LibraryRow> m_rows;
};

} // namespace quillon
