#include "shown_numbers.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace quillon {

QString withOneDecimal(double number) {
    const QString plain = QString::number(number, 'f', 1);
    //: A number with a decimal: %1 is what stands before the decimal mark, %2 what stands behind it.
    return QCoreApplication::translate("Numbers", "%1.%2")
        .arg(plain.section(u'.', 0, 0), plain.section(u'.', 1));
}

int pluralForm(qint64 count) {
    return static_cast<int>(std::clamp<qint64>(count, 0, std::numeric_limits<int>::max()));
}

} // namespace quillon
