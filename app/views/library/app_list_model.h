#pragma once

#include <quillon/app/core/shared_sheets.h>

#include <QAbstractListModel>
#include <QString>

#include <string>
#include <vector>

namespace quillon {

/// One application of the Library's list.
struct LibraryApp {
    std::string bundleID;
    QString name;
    QString caption; ///< "59 shortcuts"

    bool operator==(const LibraryApp&) const = default;
};

/// The applications of which there are sheets, by their names as people sort them.
std::vector<LibraryApp> libraryApps(const SharedSheets& sheets);

/// These for a list view.
class AppListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    enum Role { bundleRole = Qt::UserRole, captionRole };

    using QAbstractListModel::QAbstractListModel;

    void setApps(std::vector<LibraryApp> apps);
    /// Where the application stands; invalid for one that is not in the list.
    QModelIndex indexOf(const std::string& bundleID) const;
    std::string bundleID(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<LibraryApp> m_apps;
};

} // namespace quillon
