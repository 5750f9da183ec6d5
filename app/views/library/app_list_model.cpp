#include "app_list_model.h"

#include "library_texts.h"

#include <quillon/app/views/components/text.h>
#include <quillon/app/views/sheet/named_apps.h>

#include <algorithm>
#include <utility>

namespace quillon {

std::vector<LibraryApp> libraryApps(const SharedSheets& sheets) {
    std::vector<LibraryApp> apps;
    for (NamedApp& app : appsByName(sheets)) {
        const std::size_t count = sheets.find(app.bundleID)->second->entries.size();
        apps.push_back(
            {.bundleID = std::move(app.bundleID),
             .name = std::move(app.name),
             .caption = LibraryTexts::shortcuts(static_cast<qint64>(count))});
    }
    return apps;
}

void AppListModel::setApps(std::vector<LibraryApp> apps) {
    if (apps == m_apps)
        return;
    beginResetModel();
    m_apps = std::move(apps);
    endResetModel();
}

QModelIndex AppListModel::indexOf(const std::string& bundleID) const {
    const auto app = std::ranges::find(m_apps, bundleID, &LibraryApp::bundleID);
    return app == m_apps.end() ? QModelIndex() : index(static_cast<int>(app - m_apps.begin()));
}

std::string AppListModel::bundleID(const QModelIndex& index) const {
    return m_apps[static_cast<std::size_t>(index.row())].bundleID;
}

int AppListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_apps.size());
}

QVariant AppListModel::data(const QModelIndex& index, int role) const {
    const LibraryApp& app = m_apps[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return app.name;
    case captionRole: return app.caption;
    case bundleRole: return text(app.bundleID);
    case Qt::AccessibleTextRole: return QStringLiteral("%1, %2").arg(app.name, app.caption);
    default: return {};
    }
}

} // namespace quillon
