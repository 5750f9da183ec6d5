#include "content_height.h"

#include <QLayout>
#include <QWidget>

namespace quillon {

int contentHeight(const QWidget& content, int width) {
    for (QLayout* const layout : content.findChildren<QLayout*>())
        layout->invalidate();
    return content.heightForWidth(width);
}

} // namespace quillon
