#include "library_detail.h"

#include "detail_accessible.h"
#include "learned_rows.h"
#include "library_texts.h"

#include <quillon/app/core/local_day.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace quillon {

namespace {

/// Soon after the rows are on the screen, before anyone can have typed.
constexpr std::chrono::milliseconds searchPreparationDelay{40};

} // namespace

LibraryDetail::LibraryDetail(AppModel& model, ThemeSource& themes, const Clock& clock, QWidget* parent)
    : QListView(parent), m_model(model), m_themes(themes), m_clock(clock),
      m_rows(new LibraryRowsModel(themes, this)), m_delegate(new LibraryRowDelegate(themes.theme(), this)) {
    installDetailAccessible();
    setModel(m_rows);
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    m_refresh.setSingleShot(true);
    m_refresh.callOnTimeout(this, [this] { refresh(); });
    m_prepareSearch.setSingleShot(true);
    m_prepareSearch.setInterval(searchPreparationDelay);
    m_prepareSearch.callOnTimeout(this, [this] { m_sheet.prepareSearch(); });
    connect(m_rows, &LibraryRowsModel::dataChanged, this, [this](const QModelIndex& changed) {
        tellRowChanged(*this, changed.row());
    });
    m_themeChange = themes.changed.subscribe([this] { wearTheme(); });
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field != ModelField::sheets)
            return;
        m_sheet.sheetMayDiffer();
        refreshSoon();
    });
    m_recordChange = model.recordChanged.subscribe([this](const RecordChange& change) {
        if (!change.concerns(m_bundleID))
            return;
        m_sheet.recordsMayDiffer();
        refreshSoon();
    });
    wearTheme();
}

void LibraryDetail::setApp(const std::string& bundleID) {
    if (std::exchange(m_bundleID, bundleID) == bundleID)
        return;
    m_sheet.sheetMayDiffer();
    m_sheet.recordsMayDiffer();
    m_button.reset();
    setCurrentIndex({});
    refresh();
    scrollToTop();
}

void LibraryDetail::setQuery(std::string query) {
    if (std::exchange(m_query, std::move(query)) == m_query)
        return;
    setCurrentIndex({});
    refresh();
    scrollToTop();
}

void LibraryDetail::refreshSoon() {
    if (!m_refresh.isActive())
        m_refresh.start();
}

void LibraryDetail::refresh() {
    m_refresh.stop();
    const auto known = m_model.sheets().find(m_bundleID);
    if (known == m_model.sheets().end()) {
        setRows({});
        return;
    }
    const AppSheet& sheet = *known->second;
    m_sheet.update(&sheet, m_model.annotations(), m_model.usage());
    if (m_sheet.isSearchStale() && isVisible())
        m_prepareSearch.start();
    setAccessibleName(LibraryTexts::shortcutsName(m_sheet.prepared()->appName));
    const Seconds age = secondsBetween(sheet.readAt, m_clock.now());
    std::vector<LibraryRow> rows =
        libraryRows(*m_sheet.prepared(), m_model.usage(), m_sheet.matches(m_query), age);
    if (m_query.empty())
        std::ranges::move(learned(sheet), std::back_inserter(rows));
    setRows(std::move(rows));
}

std::vector<LibraryRow> LibraryDetail::learned(const AppSheet& sheet) const {
    const auto summary =
        learnedSummary(sheet, m_model.usage(), m_model.weeks().weeks(m_bundleID), localDay(m_clock.now()));
    return summary ? learnedRows(*summary) : std::vector<LibraryRow>();
}

void LibraryDetail::setRows(std::vector<LibraryRow> rows) {
    m_delegate->makeRoomForKeys(rows);
    const Place before = place();
    if (m_rows->setRows(std::move(rows)) == LibraryRowsModel::Change::within)
        return;
    ++m_generation;
    m_hovered.reset();
    m_pressed.reset();
    tellRowsReplaced(*this);
    goBackTo(before);
    mark();
}

LibraryDetail::Place LibraryDetail::place() const {
    Place place;
    if (const QModelIndex top = indexAt({viewport()->width() / 2, 0}); top.isValid()) {
        place.top = m_rows->row(top);
        place.offset = visualRect(top).top();
    }
    if (currentIndex().isValid())
        place.current = m_rows->row(currentIndex());
    return place;
}

void LibraryDetail::goBackTo(const Place& place) {
    if (place.current)
        setCurrentIndex(m_rows->indexOf(*place.current));
    const QModelIndex top = place.top ? m_rows->indexOf(*place.top) : QModelIndex();
    if (!top.isValid())
        return;
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(top).top() - place.offset);
}

std::optional<RowButton> LibraryDetail::currentButton() const {
    const bool hasButtons = currentIndex().isValid() && m_rows->hasButtons(currentIndex());
    return hasButtons ? m_button : std::nullopt;
}

void LibraryDetail::goTo(int row, std::optional<RowButton> button) {
    setFocus(Qt::OtherFocusReason);
    m_button = button;
    setCurrentIndex(m_rows->index(row));
    mark();
    tellFocus(*this);
}

void LibraryDetail::setButton(std::optional<RowButton> button) {
    m_button = button;
    mark();
    tellFocus(*this);
}

void LibraryDetail::press(int row, RowButton button) {
    const LibraryRow pressed = m_rows->row(m_rows->index(row));
    switch (button) {
    case RowButton::pin: m_model.togglePin(m_bundleID, pressed.entryID); break;
    case RowButton::note: Q_EMIT noteWanted(pressed.entryID, pressed.text); break;
    case RowButton::mute: m_model.setMuted(m_bundleID, pressed.entryID, !pressed.muted); break;
    }
}

QRect LibraryDetail::buttonRect(int row, RowButton button) const {
    const QModelIndex index = m_rows->index(row);
    return m_delegate->buttonRect(button, optionOf(index), m_rows->row(index));
}

std::optional<LibraryDetail::ButtonPlace> LibraryDetail::buttonAt(const QPoint& point) const {
    const QModelIndex index = indexAt(point);
    if (!index.isValid())
        return std::nullopt;
    const auto button = m_delegate->buttonAt(point, optionOf(index), m_rows->row(index));
    return button ? std::optional<ButtonPlace>({index, *button}) : std::nullopt;
}

QStyleOptionViewItem LibraryDetail::optionOf(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return option;
}

void LibraryDetail::setHovered(std::optional<ButtonPlace> place) {
    if (m_hovered == place)
        return;
    m_hovered = std::move(place);
    mark();
}

void LibraryDetail::mark() {
    RowMarks marks{.focused = currentButton()};
    if (m_hovered) {
        marks.hovered = m_hovered->button;
        marks.isDown = m_pressed == m_hovered;
    }
    m_delegate->setMarks(marks);
    viewport()->update();
}

/// Left and Right as they are seen: the row itself stands where reading begins.
bool LibraryDetail::useForButtons(const QKeyEvent& event) {
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!isPlain || !currentIndex().isValid() || !m_rows->hasButtons(currentIndex()))
        return false;
    const int last = static_cast<int>(allRowButtons.size()) - 1;
    const int at = m_button ? static_cast<int>(positionOf(*m_button)) : -1;
    const auto step = [&](int forwards) {
        const int next = std::clamp(isRightToLeft() ? at - forwards : at + forwards, -1, last);
        setButton(next < 0 ? std::nullopt : std::optional(allRowButtons[static_cast<std::size_t>(next)]));
    };
    switch (event.key()) {
    case Qt::Key_Left: step(-1); return true;
    case Qt::Key_Right: step(1); return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_button && !event.isAutoRepeat())
            press(currentIndex().row(), *m_button);
        return m_button.has_value();
    default: return false;
    }
}

void LibraryDetail::keyPressEvent(QKeyEvent* event) {
    if (!useForButtons(*event))
        QListView::keyPressEvent(event);
}

void LibraryDetail::mousePressEvent(QMouseEvent* event) {
    const auto place = buttonAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !place) {
        m_button.reset();
        QListView::mousePressEvent(event);
        mark();
        return;
    }
    m_pressed = place;
    setHovered(place);
    mark();
}

void LibraryDetail::mouseMoveEvent(QMouseEvent* event) {
    setHovered(buttonAt(event->position().toPoint()));
    if (!m_pressed)
        QListView::mouseMoveEvent(event);
}

void LibraryDetail::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_pressed || event->button() != Qt::LeftButton) {
        QListView::mouseReleaseEvent(event);
        return;
    }
    const ButtonPlace pressed = *std::exchange(m_pressed, std::nullopt);
    if (buttonAt(event->position().toPoint()) == pressed) {
        m_button = pressed.button;
        setCurrentIndex(pressed.index);
        press(pressed.index.row(), pressed.button);
    }
    mark();
}

/// Two quick presses are two.
void LibraryDetail::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

bool LibraryDetail::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        setHovered(std::nullopt);
    return QListView::viewportEvent(event);
}

void LibraryDetail::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    mark();
    if (currentButton())
        tellFocus(*this);
}

void LibraryDetail::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
        setCurrentIndex(m_rows->index(0));
    else if (currentButton())
        tellFocus(*this);
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

void LibraryDetail::wearTheme() {
    QPalette colours = m_themes.theme().palette.forToolkit();
    colours.setColor(QPalette::Base, m_themes.theme().palette.window);
    setPalette(colours);
    makeThin(*verticalScrollBar(), m_themes.theme());
    auto* const delegate = new LibraryRowDelegate(m_themes.theme(), this);
    delegate->makeRoomForKeys(m_rows->rows());
    setItemDelegate(delegate);
    delete std::exchange(m_delegate, delegate);
    mark();
    scheduleDelayedItemsLayout();
}

} // namespace quillon
