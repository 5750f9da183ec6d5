#pragma once

#include <quillon/app/views/components/theme.h>

#include <QFont>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

namespace quillon {

/// The toast's fonts: the theme's, made smaller where its interface font is too large for the toast.
struct ToastFonts {
    QFont caption; ///< in capitals
    QFont title;
    double keys = 0; ///< size of the key caps' font, in logical pixels

    static ToastFonts of(const Theme& theme);
};

/// What of the toast decides where its parts are. Sizes in logical pixels.
struct ToastMeasures {
    ToastFonts fonts;
    QSize keys;
    double keysLine = 0; ///< from the top of the keys down to the line that their text stands on
    QString title;
    bool isNamed = false; ///< the keys are shown by names, which may leave no room beside them
};

/// Where the parts of the toast are, in logical pixels from its top left corner. A text's box is as wide as
/// the text that is shown and reaches down to the line that it stands on.
struct ToastLayout {
    static constexpr QSize size{360, 92};
    static constexpr int symbolSize = 38;
    /// The width that keys and title share.
    static int room();

    QRect symbol;
    QRectF caption;
    QRect keys;         ///< always whole
    QRectF title;       ///< beside the keys; below them where names leave it too little room
    QString shownTitle; ///< shortened where the whole does not fit

    /// Mirrored where the interface reads from right to left.
    static ToastLayout of(const ToastMeasures& measures, Qt::LayoutDirection direction);
};

} // namespace quillon
