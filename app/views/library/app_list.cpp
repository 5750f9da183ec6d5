#include "app_list.h"

#include "app_list_delegate.h"
#include "library_texts.h"

#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace quillon {

AppList::AppList(ThemeSource& themes, AppIconCache& icons, QWidget* parent)
    : QListView(parent), m_themes(themes), m_apps(new AppListModel(this)) {
    setModel(m_apps);
    setItemDelegate(new AppListDelegate(themes, icons, this));
    setAccessibleName(LibraryTexts::appsName());
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &AppList::tellChoice);
    m_themeChange = themes.changed.subscribe([this] { wearTheme(); });
    wearTheme();
}

void AppList::setApps(std::vector<LibraryApp> apps, const std::string& chosen) {
    m_isTheirChoice = false;
    m_apps->setApps(std::move(apps));
    // A list that was made anew has forgotten what was chosen in it.
    if (const QModelIndex index = m_apps->indexOf(chosen); index != currentIndex())
        setCurrentIndex(index);
    m_isTheirChoice = true;
}

void AppList::tellChoice() {
    if (!m_isTheirChoice)
        return;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    Q_EMIT chosen(selected.isEmpty() ? std::string() : m_apps->bundleID(selected.first()));
}

void AppList::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    // Not every version of the toolkit takes a press beside all rows for the choice of none.
    if (event->button() == Qt::LeftButton && !indexAt(event->position().toPoint()).isValid())
        selectionModel()->clearSelection();
}

/// A list that gets the keyboard is at its first application without having chosen it: the first step chooses
/// this one and goes no further.
void AppList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isStep = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Return
                        || key == Qt::Key_Enter || key == Qt::Key_Home;
    if (isStep && currentIndex().isValid() && !selectionModel()->hasSelection())
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    else
        QListView::keyPressEvent(event);
}

void AppList::wearTheme() {
    QPalette colours = m_themes.theme().palette.forToolkit();
    colours.setColor(QPalette::Base, m_themes.theme().palette.card);
    setPalette(colours);
    makeThin(*verticalScrollBar(), m_themes.theme());
    scheduleDelayedItemsLayout();
}

} // namespace quillon
