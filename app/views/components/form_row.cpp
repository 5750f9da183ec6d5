#include "form_row.h"

#include "focus_ring.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int endPadding = 8;
constexpr int lowestLine = 28;
constexpr int noteGap = 4;
constexpr int controlGap = 16;

} // namespace

FormRow::FormRow(ThemeSource& themes, QWidget* parent)
    : QWidget(parent), m_themes(themes), m_column(new QVBoxLayout(this)) {
    m_column->setContentsMargins(
        sidePadding - focusRingRoom, endPadding, sidePadding - focusRingRoom, endPadding);
    m_column->setSpacing(noteGap);
}

FormRow* FormRow::ofText(ThemeSource& themes, const QString& text, QWidget* parent) {
    auto* row = new FormRow(themes, parent);
    row->m_column->addWidget(row->makeText(text, &Palette::primary));
    return row;
}

FormRow::FormRow(ThemeSource& themes, const QString& label, QWidget* control, QWidget* parent)
    : FormRow(themes, parent) {
    m_control = control;
    auto* line = new QHBoxLayout;
    line->setSpacing(controlGap);
    ThemedLabel* const name = makeText(label, &Palette::primary);
    name->setBuddy(control);
    line->addWidget(name, 1, Qt::AlignVCenter);
    line->addWidget(control, 0, Qt::AlignVCenter);
    line->addStrut(lowestLine);
    m_column->addLayout(line);
    if (control->accessibleName().isEmpty())
        control->setAccessibleName(label);
}

ThemedLabel* FormRow::makeText(const QString& text, QColor Palette::*colour) {
    auto* label = new ThemedLabel(
        m_themes, [](const TextStyles& styles) { return styles.body; }, colour, this);
    label->setText(text);
    label->setWordWrap(true);
    label->setContentsMargins(focusRingRoom, 0, focusRingRoom, 0);
    return label;
}

ThemedLabel* FormRow::addNote(const QString& text) {
    auto* note = new ThemedLabel(
        m_themes, [](const TextStyles& styles) { return styles.callout; }, &Palette::secondary, this);
    note->setText(text);
    note->setWordWrap(true);
    note->setContentsMargins(focusRingRoom, 0, focusRingRoom, 0);
    m_column->addWidget(note);
    return note;
}

void FormRow::addBelow(QWidget* widget) {
    m_column->addWidget(widget);
}

void FormRow::mouseReleaseEvent(QMouseEvent* event) {
    auto* const button = qobject_cast<QAbstractButton*>(m_control);
    if (button && button->isCheckable() && event->button() == Qt::LeftButton
        && rect().contains(event->position().toPoint()))
        button->click();
}

} // namespace quillon
