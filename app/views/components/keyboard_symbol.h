#pragma once

#include <QPixmap>

namespace quillon {

/// A keyboard, black, `size` logical pixels square. Its keys are too small for a drawing that is only scaled:
/// each of them covers whole pixels.
QPixmap keyboardPicture(int size, double ratio);

/// The same with a disc in its lower right corner that shows an ellipsis.
QPixmap keyboardWithEllipsis(int size, double ratio);

} // namespace quillon
