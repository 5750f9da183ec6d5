#include "styled_menu.h"

#include "colours.h"
#include "round_corners.h"

#include <QAction>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int cornerRadius = 8;

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
    roundCorners(menu, cornerRadius);
}

} // namespace quillon
