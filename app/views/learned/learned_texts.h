#pragma once

#include "learned_summary.h"

#include <QString>

namespace quillon {

/// The sentences of what was learned, whole and ready to be translated.
namespace LearnedTexts {

/// Over all of it.
QString heading();
/// Beside the chart's two colours.
QString typed();
QString clicked();
/// Under a week of the chart, short: "16 Nov"; in the order that the language of the program has.
QString weekLabel(Day monday);
/// The chart in words: "Week of 16 Nov: 3 clicked, 12 typed." for each week in which something was counted;
/// "" when there is none.
QString weeksInWords(const LearnedSummary& summary);
/// "Graduated (3): Save, Open, Find" or how that is done.
QString graduated(const LearnedSummary& summary);
/// An estimate with how it is reckoned; "" while nothing was typed.
QString timeSaved(Count typed);

} // namespace LearnedTexts

} // namespace quillon
