#pragma once

#include <QString>

namespace quillon {

/// A number with one decimal, as the program's language writes it: "0.8", in German "0,8".
QString withOneDecimal(double number);

/// The number by which a translated pattern chooses its plural form: the count, or the nearest that there is.
int pluralForm(qint64 count);

} // namespace quillon
