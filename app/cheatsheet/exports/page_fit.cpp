#include "page_fit.h"

#include <algorithm>

namespace quillon {

namespace {

double scaleFor(QSizeF room, QSizeF page) {
    return std::min(room.width() / page.width(), room.height() / page.height());
}

} // namespace

QTransform fittedTo(const QRectF& paper, QSizeF page) {
    const bool isTurned = scaleFor(paper.size(), page.transposed()) > scaleFor(paper.size(), page);
    const double scale = scaleFor(paper.size(), isTurned ? page.transposed() : page);
    QTransform fit;
    fit.translate(paper.center().x(), paper.center().y());
    if (isTurned)
        fit.rotate(90);
    fit.scale(scale, scale);
    fit.translate(-page.width() / 2, -page.height() / 2);
    return fit;
}

} // namespace quillon
