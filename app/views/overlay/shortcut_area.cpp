#include "shortcut_area.h"

#include "area_accessible.h"
#include "area_painter.h"
#include "area_tips.h"
#include "overlay_texts.h"

#include <quillon/app/views/components/keys_view.h>
#include <quillon/app/views/components/styled_menu.h>
#include <quillon/app/views/components/text.h>
#include <quillon/app/views/components/thin_scroll_bar.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// How far content fades out where it goes on beyond the edge.
constexpr int fadeHeight = 14;

std::optional<RowStep> stepOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up: return RowStep::up;
    case Qt::Key_Down: return RowStep::down;
    case Qt::Key_Left: return RowStep::left;
    case Qt::Key_Right: return RowStep::right;
    case Qt::Key_Home: return RowStep::first;
    case Qt::Key_End: return RowStep::last;
    case Qt::Key_PageUp: return RowStep::pageUp;
    case Qt::Key_PageDown: return RowStep::pageDown;
    default: return std::nullopt;
    }
}

bool asksForMenu(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu
           || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace

ShortcutArea::ShortcutArea(ThemeSource& themes, QWidget* parent)
    : QAbstractScrollArea(parent), m_themes(themes), m_measure(std::make_unique<TextMeasure>(themes.theme())),
      m_sheet(std::make_shared<const PreparedSheet>()) {
    installAreaAccessible();
    setAccessibleName(OverlayTexts::listName());
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::TabFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    m_subscription = themes.changed.subscribe([this] { themeChanged(); });
    makeThin(*verticalScrollBar(), themes.theme());
}

void ShortcutArea::themeChanged() {
    m_measure = std::make_unique<TextMeasure>(m_themes.theme());
    m_card.reset();
    makeThin(*verticalScrollBar(), m_themes.theme());
    relayout();
}

ShortcutArea::RowName ShortcutArea::nameOf(std::size_t row) const {
    const RowBox& box = m_layout.rows[row];
    return {m_sheet->entries[box.entry].id, box.submenu};
}

std::optional<std::size_t> ShortcutArea::rowNamed(const RowName& name) const {
    const auto found = std::ranges::find_if(m_layout.rows, [&](const RowBox& row) {
        return row.submenu == name.submenu && m_sheet->entries[row.entry].id == name.id;
    });
    if (found == m_layout.rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_layout.rows.begin());
}

/// Of what is scrolled to: the row that was acted on, else the first that is seen.
std::optional<ShortcutArea::Anchor> ShortcutArea::anchor() const {
    if (scrolled() == 0)
        return std::nullopt;
    const QRectF visible(0, scrolled(), m_layout.width, viewport()->height());
    const auto isSeen = [&](const RowBox& row) { return visible.contains(row.rect); };
    std::optional<std::size_t> row = m_current;
    if (!row || !isSeen(m_layout.rows[*row])) {
        const auto first = std::ranges::find_if(m_layout.rows, isSeen);
        if (first == m_layout.rows.end())
            return std::nullopt;
        row = static_cast<std::size_t>(first - m_layout.rows.begin());
    }
    return Anchor{nameOf(*row), m_layout.rows[*row].rect.top() - scrolled()};
}

void ShortcutArea::holdFast(const Anchor& anchor) {
    if (const auto row = rowNamed(anchor.row))
        verticalScrollBar()->setValue(
            static_cast<int>(std::lround(m_layout.rows[*row].rect.top() - anchor.fromTop)));
}

void ShortcutArea::setContent(std::shared_ptr<const PreparedSheet> sheet, AreaContent content) {
    const std::optional<RowName> current = m_current ? std::optional(nameOf(*m_current)) : std::nullopt;
    const std::optional<Anchor> fixed = anchor();
    m_sheet = std::move(sheet);
    m_content = std::move(content);
    m_current.reset();
    relayout();
    if (fixed)
        holdFast(*fixed);
    if (current)
        m_current = rowNamed(*current);
    if (current && !m_current && !m_layout.rows.empty())
        m_current = 0;
}

void ShortcutArea::relayout() {
    const double width = std::max(1, contentsRect().width() - thinScrollBarWidth);
    m_layout = AreaLayout::of(m_content, *m_sheet, *m_measure, width);
    if (m_current && *m_current >= m_layout.rows.size())
        m_current.reset();
    m_hovered.reset();
    ++m_generation;
    updateScrollBar();
    viewport()->update();
    tellAreaReplaced(*this);
}

void ShortcutArea::updateScrollBar() {
    QScrollBar& bar = *verticalScrollBar();
    const int visible = viewport()->height();
    bar.setRange(0, std::max(0, static_cast<int>(std::ceil(m_layout.height)) - visible));
    bar.setPageStep(visible);
    bar.setSingleStep(static_cast<int>(RowArranger(*m_measure, m_layout.width).lineHeight()));
}

double ShortcutArea::scrolled() const {
    return verticalScrollBar()->value();
}

QRect ShortcutArea::visualRect(const QRectF& box) const {
    return box.translated(0, -scrolled()).toAlignedRect();
}

std::optional<std::size_t> ShortcutArea::rowAt(const QPoint& viewportPosition) const {
    const std::ptrdiff_t row = m_layout.rowAt(QPointF(viewportPosition) + QPointF(0, scrolled()));
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void ShortcutArea::updateRow(std::optional<std::size_t> row) {
    if (row && *row < m_layout.rows.size())
        viewport()->update(visualRect(m_layout.rows[*row].rect).adjusted(-1, -1, 1, 1));
}

void ShortcutArea::hover(std::optional<std::size_t> row) {
    if (row == m_hovered)
        return;
    updateRow(std::exchange(m_hovered, row));
    updateRow(m_hovered);
}

void ShortcutArea::setCurrentRow(std::size_t row) {
    if (row >= m_layout.rows.size())
        return;
    updateRow(std::exchange(m_current, row));
    updateRow(m_current);
    reveal(row);
    if (hasFocus())
        tellRowFocused(*this, row);
}

void ShortcutArea::reveal(std::size_t row) {
    const QRectF rect = m_layout.rows[row].rect.adjusted(0, -fadeHeight, 0, fadeHeight);
    QScrollBar& bar = *verticalScrollBar();
    if (rect.top() < bar.value())
        bar.setValue(static_cast<int>(std::floor(rect.top())));
    else if (rect.bottom() > bar.value() + viewport()->height())
        bar.setValue(static_cast<int>(std::ceil(rect.bottom())) - viewport()->height());
}

void ShortcutArea::scrollToTop() {
    verticalScrollBar()->setValue(0);
}

void ShortcutArea::scrollByPage(int pages) {
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(bar.value() + pages * (bar.pageStep() - fadeHeight));
}

void ShortcutArea::step(RowStep step) {
    if (m_layout.rows.empty())
        return;
    if (!m_current) {
        setCurrentRow(0);
        return;
    }
    const std::size_t next = rowAfterStep(m_layout, *m_current, step, viewport()->height() - fadeHeight);
    const bool isTop = step == RowStep::up && next == *m_current;
    setCurrentRow(next);
    // The titles above the first rows and the room below the last ones have no row to be revealed with.
    QScrollBar& bar = *verticalScrollBar();
    const bool nearTop = m_layout.rows[next].rect.top() < fadeHeight * 4;
    if (step == RowStep::first || (step == RowStep::up && nearTop))
        scrollToTop();
    if (step == RowStep::last)
        bar.setValue(bar.maximum());
    if (isTop)
        Q_EMIT leftUpwards();
}

bool ShortcutArea::isEnabledRow(std::size_t row) const {
    return m_sheet->entries[m_layout.rows[row].entry].enabled;
}

QString ShortcutArea::spokenRow(std::size_t row) const {
    const RowBox& box = m_layout.rows[row];
    const PreparedEntry& entry = m_sheet->entries[box.entry];
    QStringList parts{entry.title};
    if (!entry.submenu.isEmpty())
        parts.append(entry.submenu);
    if (entry.pinned)
        parts.append(OverlayTexts::pinned());
    if (entry.clicked > 0)
        parts.append(OverlayTexts::spokenBadge(entry.clicked));
    if (!entry.note.isEmpty())
        parts.append(entry.note);
    parts.append(keysText(entry.shortcut, m_themes.theme()));
    return parts.join(u", "_s);
}

void ShortcutArea::openRowMenu(std::size_t row) {
    const QRect rect = visualRect(m_layout.rows[row].rect);
    showRowMenu(row, viewport()->mapToGlobal(rect.bottomLeft() + QPoint(static_cast<int>(rowInset), 0)));
}

void ShortcutArea::closeRowMenu() {
    if (m_menu)
        m_menu->close();
}

void ShortcutArea::showRowMenu(std::size_t row, const QPoint& globalPosition) {
    Q_EMIT rowMenuOpening();
    setCurrentRow(row);
    const PreparedEntry& entry = m_sheet->entries[m_layout.rows[row].entry];
    closeRowMenu();
    m_menu = new QMenu(this);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    styleMenu(*m_menu, m_themes.theme());
    m_menu->addAction(
        entry.pinned ? OverlayTexts::unpin() : OverlayTexts::pin(), this,
        [this, bundleID = m_sheet->bundleID, id = entry.id] { Q_EMIT pinToggled(bundleID, id); });
    QAction* const library =
        m_menu->addAction(OverlayTexts::openInLibrary(), this, &ShortcutArea::libraryRequested);
    library->setEnabled(m_libraryIsOffered);
    m_menu->popup(globalPosition);
}

void ShortcutArea::showTip(const QHelpEvent& event) {
    const QPointF point = QPointF(event.pos()) + QPointF(0, scrolled());
    if (const auto tip = tipAt(point, m_content, *m_sheet, m_layout, *m_measure))
        QToolTip::showText(event.globalPos(), tip->html, viewport(), visualRect(tip->box));
    else
        QToolTip::hideText();
}

bool ShortcutArea::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::ToolTip: showTip(*static_cast<QHelpEvent*>(event)); return true;
    case QEvent::Leave: hover(std::nullopt); break;
    default: break;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void ShortcutArea::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRectF visible = QRectF(event->rect()).translated(0, scrolled());
    painter.translate(0, -scrolled());
    const RowHighlights highlights{.hovered = m_hovered, .focused = hasFocus() ? m_current : std::nullopt};
    AreaPainter(m_themes.theme(), *m_measure, cardPicture(), m_content, *m_sheet, m_layout)
        .paint(painter, visible, highlights);
    painter.resetTransform();
    paintScrollEdges(painter);
}

const NinePatch& ShortcutArea::cardPicture() {
    if (!m_card || m_card->ratio() != devicePixelRatioF())
        m_card = AreaPainter::cardPicture(m_themes.theme().palette, devicePixelRatioF());
    return *m_card;
}

void ShortcutArea::paintScrollEdges(QPainter& painter) const {
    const QScrollBar& bar = *verticalScrollBar();
    const QColor solid = m_themes.theme().palette.window;
    QColor clear = solid;
    clear.setAlpha(0);
    const auto fade = [&](int top, const QColor& from, const QColor& to) {
        QLinearGradient gradient(0, top, 0, top + fadeHeight);
        gradient.setColorAt(0, from);
        gradient.setColorAt(1, to);
        painter.fillRect(QRect(0, top, viewport()->width(), fadeHeight), gradient);
    };
    if (bar.value() > bar.minimum())
        fade(0, solid, clear);
    if (bar.value() < bar.maximum())
        fade(viewport()->height() - fadeHeight, clear, solid);
}

void ShortcutArea::resizeEvent(QResizeEvent* event) {
    const double width = std::max(1, contentsRect().width() - thinScrollBarWidth);
    if (width != m_layout.width)
        relayout();
    else
        updateScrollBar();
    QAbstractScrollArea::resizeEvent(event);
}

void ShortcutArea::scrollContentsBy(int, int) {
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    m_hovered = viewport()->underMouse() ? rowAt(pointer) : std::nullopt;
    viewport()->update();
}

void ShortcutArea::keyPressEvent(QKeyEvent* event) {
    if (asksForMenu(*event) && m_current) {
        openRowMenu(*m_current);
        return;
    }
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const auto wanted = stepOf(*event);
    if (isPlain && wanted)
        step(*wanted);
    else
        event->ignore();
}

void ShortcutArea::mouseMoveEvent(QMouseEvent* event) {
    hover(rowAt(event->position().toPoint()));
}

void ShortcutArea::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (m_current)
            openRowMenu(*m_current);
    } else if (const auto row = rowAt(event->pos())) {
        showRowMenu(*row, event->globalPos());
    }
    event->accept();
}

void ShortcutArea::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    if (!m_current && !m_layout.rows.empty())
        m_current = rowAt(QPoint(static_cast<int>(rowInset) * 3, 0)).value_or(0);
    if (m_current && event->reason() != Qt::PopupFocusReason)
        setCurrentRow(*m_current);
    viewport()->update();
}

void ShortcutArea::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace quillon
