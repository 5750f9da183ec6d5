#include "styled_menu.h"

#include "colours.h"

#include <QAction>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int cornerRadius = 8;

/// A box without what lies outside of its rounded corners.
QRegion roundedRegion(const QRect& box, int radius) {
    QRegion region(box.adjusted(0, radius, 0, -radius));
    for (int row = 0; row < radius; ++row) {
        const double up = radius - (row + 0.5);
        const int cut = static_cast<int>(std::ceil(radius - std::sqrt(radius * radius - up * up) - 0.5));
        const int left = box.left() + std::max(cut, 0);
        const int width = box.width() - 2 * std::max(cut, 0);
        region += QRect(left, box.top() + row, width, 1);
        region += QRect(left, box.bottom() - row, width, 1);
    }
    return region;
}

/// Keeps a menu cut to a rounded box. Cut, not translucent: not every desktop blends windows.
class RoundCorners final : public QObject {
  public:
    explicit RoundCorners(QMenu& menu) : QObject(&menu), m_menu(menu) { menu.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            m_menu.setMask(roundedRegion(m_menu.rect(), cornerRadius));
        return QObject::eventFilter(watched, event);
    }

  private:
    QMenu& m_menu;
};

} // namespace

void styleMenu(QMenu& menu, const Theme& theme) {
    const Palette& palette = theme.palette;
    const QString sheet =
        u"QMenu { background: %1; border: 1px solid %2; border-radius: %7px; padding: 4px; }"
        "QMenu::item { color: %3; padding: 5px 22px 5px 12px; border-radius: 5px; }"
        "QMenu::item:selected:enabled { background: %4; color: %5; }"
        "QMenu::item:disabled { color: %6; }"
        "QMenu::separator { height: 1px; background: %2; margin: 4px 8px; }"_s;
    for (QAction* const action : menu.actions())
        action->setIconVisibleInMenu(false);
    menu.setFont(theme.styles.body);
    menu.setStyleSheet(sheet.arg(
        Colours::css(palette.card), Colours::css(Colours::over(palette.windowBorder, palette.card)),
        Colours::css(palette.primary), Colours::css(palette.accent), Colours::css(palette.onAccent),
        Colours::css(palette.secondary), QString::number(cornerRadius)));
    new RoundCorners(menu);
}

} // namespace quillon
