#include "shortcut_area.h"

#include "area_accessible.h"
#include "area_painter.h"
#include "overlay_state.h"

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
    setAccessibleName(u"Shortcuts"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::TabFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    m_subscription = themes.changed.subscribe([this] { follow(); });
    makeThin(*verticalScrollBar(), themes.theme());
}

void ShortcutArea::follow() {
    m_measure = std::make_unique<TextMeasure>(m_themes.theme());
    m_card.reset();
    makeThin(*verticalScrollBar(), m_themes.theme());
    relayout();
}

void ShortcutArea::setContent(std::shared_ptr<const PreparedSheet> sheet, AreaContent content) {
    std::string currentID;
    bool currentIsWide = false;
    if (m_current) {
        const RowBox& row = m_layout.rows[*m_current];
        currentID = m_sheet->entries[row.entry].id;
        currentIsWide = row.submenu == SubmenuInRow::shown;
    }
    m_sheet = std::move(sheet);
    m_content = std::move(content);
    const bool hadCurrent = std::exchange(m_current, std::nullopt).has_value();
    m_hovered.reset();
    relayout();
    if (!hadCurrent)
        return;
    const auto same = std::ranges::find_if(m_layout.rows, [&](const RowBox& row) {
        return (row.submenu == SubmenuInRow::shown) == currentIsWide
               && m_sheet->entries[row.entry].id == currentID;
    });
    if (same != m_layout.rows.end())
        m_current = static_cast<std::size_t>(same - m_layout.rows.begin());
    else if (!m_layout.rows.empty())
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
    setCurrentRow(rowAfterStep(m_layout, *m_current, step, viewport()->height() - fadeHeight));
    // The titles above the first rows and the room below the last ones have no row to be revealed with.
    if (step == RowStep::first
        || (step == RowStep::up && m_layout.rows[*m_current].rect.top() < fadeHeight * 4))
        scrollToTop();
    if (step == RowStep::last)
        reveal(*m_current);
}

QString ShortcutArea::spokenRow(std::size_t row) const {
    const RowBox& box = m_layout.rows[row];
    const PreparedEntry& entry = m_sheet->entries[box.entry];
    QStringList parts{entry.title};
    if (!entry.submenu.isEmpty())
        parts.append(entry.submenu);
    if (entry.pinned)
        parts.append(u"Pinned"_s);
    if (entry.clicked > 0)
        parts.append(OverlayTexts::spokenBadge(entry.clicked));
    if (!entry.note.isEmpty())
        parts.append(entry.note);
    parts.append(text(entry.shortcut.display()));
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
        entry.pinned ? u"Unpin"_s : u"Pin"_s, this,
        [this, bundleID = m_sheet->bundleID, id = entry.id] { Q_EMIT pinToggled(bundleID, id); });
    QAction* const library = m_menu->addAction(u"Open in Library"_s, this, &ShortcutArea::libraryRequested);
    library->setEnabled(m_libraryIsOffered);
    m_menu->popup(globalPosition);
}

bool ShortcutArea::showRowTip(QHelpEvent* event) {
    const auto row = rowAt(event->pos());
    if (!row) {
        QToolTip::hideText();
        return true;
    }
    const RowBox& box = m_layout.rows[*row];
    const PreparedEntry& entry = m_sheet->entries[box.entry];
    const RowArranger arranger(*m_measure, box.rect.width() - 2 * rowInset);
    if (!arranger.arrange(entry, box.submenu).isElided()) {
        QToolTip::hideText();
        return true;
    }
    QStringList lines{entry.title.toHtmlEscaped()};
    if (!entry.submenu.isEmpty())
        lines.append(entry.submenu.toHtmlEscaped());
    if (!entry.note.isEmpty())
        lines.append(u"<i>"_s + entry.note.toHtmlEscaped() + u"</i>"_s);
    QToolTip::showText(event->globalPos(), lines.join(u"<br>"_s), viewport(), visualRect(box.rect));
    return true;
}

bool ShortcutArea::viewportEvent(QEvent* event) {
    switch (event->type()) {
    case QEvent::ToolTip: return showRowTip(static_cast<QHelpEvent*>(event));
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

void ShortcutArea::mousePressEvent(QMouseEvent* event) {
    const auto row = rowAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row) {
        setFocus(Qt::MouseFocusReason);
        setCurrentRow(*row);
    }
    event->ignore();
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
