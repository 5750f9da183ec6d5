#pragma once

#include <QString>

namespace quillon {

/// A number with one decimal, as the program's language writes it: "0.8", in German "0,8".
QString withOneDecimal(double number);

} // namespace quillon
