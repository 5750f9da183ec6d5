#include "thin_scroll_bar.h"

#include "colours.h"

namespace quillon {

using namespace Qt::StringLiterals;

void makeThin(QScrollBar& bar, const Theme& theme) {
    const QString sheet =
        u"QScrollBar:vertical { background: transparent; border: none; width: %1px; margin: 0; }"
        "QScrollBar::handle:vertical { background: %2; border-radius: 3px; min-height: 36px; margin: 0 0 0 "
        "4px; }"
        "QScrollBar::handle:vertical:hover, QScrollBar::handle:vertical:pressed { background: %3; }"
        "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; border: none; }"
        "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"_s;
    bar.setStyleSheet(
        sheet.arg(thinScrollBarWidth)
            .arg(Colours::css(theme.palette.primaryAt(0.22)), Colours::css(theme.palette.primaryAt(0.38))));
}

} // namespace quillon
