#include "patient_reading.h"

#include <quillon/kit/menu/menu_parser.h>

namespace quillon {

namespace {

constexpr int mostReadings = 3;

bool toldNothing(const MenuReading& reading) {
    return reading.outcome == ReadOutcome::partial
           && MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth).empty();
}

} // namespace

MenuReading readPatiently(const RunningApp& app, MenuReader& reader) {
    MenuReading reading = reader.readMenus(app, {});
    for (int i = 1; i < mostReadings && toldNothing(reading); ++i)
        reading = reader.readMenus(app, {});
    return reading;
}

} // namespace quillon
