#include "library_detail.h"

#include "library_row_delegate.h"
#include "library_texts.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QEvent>
#include <QFocusEvent>

#include <utility>

namespace quillon {

LibraryDetail::LibraryDetail(AppModel& model, ThemeSource& themes, const Clock& clock, QWidget* parent)
    : QListView(parent), m_model(model), m_themes(themes), m_clock(clock),
      m_rows(new LibraryRowsModel(themes, this)) {
    setModel(m_rows);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(QListView::Adjust);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &LibraryDetail::refresh);
    m_themeChange = themes.changed.subscribe([this] { wearTheme(); });
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field == ModelField::sheets)
            refreshSoon();
    });
    m_recordChange = model.recordChanged.subscribe([this](const RecordChange& change) {
        if (change.concerns(m_bundleID))
            refreshSoon();
    });
    wearTheme();
}

void LibraryDetail::setApp(const std::string& bundleID) {
    if (std::exchange(m_bundleID, bundleID) == bundleID)
        return;
    refresh();
    scrollToTop();
}

void LibraryDetail::setQuery(std::string query) {
    if (std::exchange(m_query, std::move(query)) == m_query)
        return;
    refresh();
    scrollToTop();
}

void LibraryDetail::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        setCurrentIndex(m_rows->index(0));
}

void LibraryDetail::showEvent(QShowEvent* event) {
    QListView::showEvent(event);
    refreshSoon();
}

void LibraryDetail::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        refreshSoon();
}

void LibraryDetail::refreshSoon() {
    if (!m_refresh.isActive())
        m_refresh.start();
}

void LibraryDetail::refresh() {
    m_refresh.stop();
    const auto sheet = m_model.sheets().find(m_bundleID);
    if (sheet == m_model.sheets().end()) {
        m_rows->setRows({});
        return;
    }
    setAccessibleName(LibraryTexts::shortcutsName(foreignLine(sheet->second->appName)));
    std::vector<LibraryRow> rows =
        libraryRows(*sheet->second, {m_model.usage(), m_model.annotations()}, m_query, m_clock.now());
    m_delegate->makeRoomForKeys(rows);
    m_rows->setRows(std::move(rows));
}

void LibraryDetail::wearTheme() {
    QPalette colours = m_themes.theme().palette.forToolkit();
    colours.setColor(QPalette::Base, m_themes.theme().palette.window);
    setPalette(colours);
    makeThin(*verticalScrollBar(), m_themes.theme());
    auto* const delegate = new LibraryRowDelegate(m_themes.theme(), this);
    delegate->makeRoomForKeys(m_rows->rows());
    setItemDelegate(delegate);
    delete std::exchange(m_delegate, delegate);
    scheduleDelayedItemsLayout();
}

} // namespace quillon
