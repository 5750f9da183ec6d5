#include "form_group.h"

#include "accessible_roles.h"
#include "form_row.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

FormGroup::FormGroup(ThemeSource& themeSource, QWidget* parent)
    : ThemedWidget(themeSource, parent), m_rows(new QVBoxLayout(this)) {
    readAs(*this, ReadAs::group);
    m_rows->setContentsMargins(1, 1, 1, 1);
    m_rows->setSpacing(1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void FormGroup::addRow(QWidget* row) {
    m_rows->addWidget(row);
}

void FormGroup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Palette& palette = theme().palette;
    m_background.paint(painter, rect(), palette.card, palette.cardBorder);
    bool isFirst = true;
    for (int index = 0; index < m_rows->count(); ++index) {
        const QWidget* const row = m_rows->itemAt(index)->widget();
        if (row->isHidden())
            continue;
        if (!isFirst)
            painter.fillRect(
                row->x() + FormRow::sidePadding, row->y() - 1, row->width() - 2 * FormRow::sidePadding, 1,
                palette.divider);
        isFirst = false;
    }
}

} // namespace quillon
