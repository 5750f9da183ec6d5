#include "themed_widget.h"

namespace quillon {

ThemedWidget::ThemedWidget(ThemeSource& themes, QWidget* parent) : QWidget(parent), m_themes(themes) {
    m_subscription = themes.changed.subscribe([this] { themeChanged(); });
}

void ThemedWidget::themeChanged() {
    updateGeometry();
    update();
}

} // namespace quillon
