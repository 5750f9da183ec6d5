#pragma once

class QWidget;

namespace quillon {

/// How high a widget wants to be at a width, in logical pixels. What became visible or not, or another font,
/// since the last event is in the layouts' own reckoning only after the next; here it is at once.
int contentHeight(const QWidget& content, int width);

} // namespace quillon
