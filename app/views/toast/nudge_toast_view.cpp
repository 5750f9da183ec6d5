#include "nudge_toast_view.h"

#include "toast_texts.h"

#include <quillon/app/views/components/accessible_roles.h>
#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include <utility>

namespace quillon {

namespace {

/// A text whose box ends at the line that it stands on.
void paintText(
    QPainter& painter, const QRectF& box, const QString& text, const QFont& font, const QColor& colour) {
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(box.bottomLeft(), text);
}

} // namespace

NudgeToastView::NudgeToastView(AppModel& model, ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_model(model), m_fonts(ToastFonts::of(theme())),
      m_symbol(new SymbolView(
          themeSource, Symbol::keyboardBadgeEllipsis, ToastLayout::symbolSize, &Palette::primary, this)),
      m_keys(new KeysView(themeSource, std::nullopt, m_fonts.keys, CapEmphasis::prominent, this)) {
    readAs(*this, ReadAs::notice);
    readAs(*m_keys, ReadAs::decoration);
    setFixedSize(ToastLayout::size);
    m_modelChange = model.changed.subscribe([this](ModelField field) {
        if (field == ModelField::nudge)
            showNudge();
    });
    arrange();
    showNudge();
}

void NudgeToastView::showNudge() {
    if (m_model.nudge())
        setEntry(m_model.nudge()->entry);
}

void NudgeToastView::setEntry(MenuEntry entry) {
    m_entry = std::move(entry);
    m_keys->setShortcut(m_entry->shortcut);
    setAccessibleName(ToastTexts::spoken(text(m_entry->shortcut.spoken()), foreignLine(m_entry->title())));
    arrange();
    if (isVisible())
        tellAgain();
}

/// Screen readers read a notice when it begins to show; one that shows already has to begin anew.
void NudgeToastView::tellAgain() {
    for (const QAccessible::Event change : {QAccessible::ObjectHide, QAccessible::ObjectShow}) {
        QAccessibleEvent event(this, change);
        QAccessible::updateAccessibility(&event);
    }
}

void NudgeToastView::arrange() {
    m_arrangement = ToastLayout::of(
        {.fonts = m_fonts,
         .keys = m_keys->sizeHint(),
         .keysLine = m_keys->baseline(),
         .title = m_entry ? foreignLine(m_entry->title()) : QString()},
        layoutDirection());
    m_symbol->setGeometry(m_arrangement.symbol);
    m_keys->setGeometry(m_arrangement.keys);
    update();
}

void NudgeToastView::themeChanged() {
    m_fonts = ToastFonts::of(theme());
    m_keys->setSize(m_fonts.keys);
    arrange();
    ThemedWidget::themeChanged();
}

void NudgeToastView::changeEvent(QEvent* event) {
    ThemedWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

void NudgeToastView::paintEvent(QPaintEvent*) {
    if (m_background.ratio().value_or(devicePixelRatioF()) != devicePixelRatioF())
        arrange();
    QPainter painter(this);
    const Palette& palette = theme().palette;
    m_background.paint(painter, rect(), palette.window, palette.windowBorder);
    paintText(painter, m_arrangement.caption, ToastTexts::caption(), m_fonts.caption, palette.secondary);
    paintText(painter, m_arrangement.title, m_arrangement.shownTitle, m_fonts.title, palette.primary);
}

} // namespace quillon
