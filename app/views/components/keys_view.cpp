#include "keys_view.h"

#include "accessible_roles.h"
#include "text.h"

#include <cmath>
#include <utility>

namespace quillon {

QString keysText(const Shortcut& shortcut, const Theme& theme) {
    return text(theme.keyNames ? spokenWith(shortcut, theme.keyNames.get()) : shortcut.display());
}

KeysView::KeysView(
    ThemeSource& themeSource, std::optional<Shortcut> shortcut, double size, CapEmphasis emphasis,
    QWidget* parent)
    : ThemedWidget(themeSource, parent), m_shortcut(std::move(shortcut)), m_size(size), m_emphasis(emphasis),
      m_caps(theme(), size, emphasis) {
    readAs(*this, ReadAs::text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    name();
}

void KeysView::setShortcut(Shortcut shortcut) {
    m_shortcut = std::move(shortcut);
    name();
    updateGeometry();
    update();
}

void KeysView::name() {
    if (m_shortcut)
        setAccessibleName(keysText(*m_shortcut, theme()));
}

void KeysView::setSize(double size) {
    m_size = size;
    KeysView::themeChanged();
}

QSize KeysView::sizeHint() const {
    return QSizeF(m_shortcut ? m_caps.width(*m_shortcut) : 0, m_caps.height()).toSize();
}

void KeysView::paintEvent(QPaintEvent*) {
    if (!m_shortcut)
        return;
    QPainter painter(this);
    m_caps.paint(painter, QPointF(0, std::floor((height() - m_caps.height()) / 2)), *m_shortcut);
}

void KeysView::themeChanged() {
    m_caps = KeyCaps(theme(), m_size, m_emphasis);
    name();
    ThemedWidget::themeChanged();
}

} // namespace quillon
