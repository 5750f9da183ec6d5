#include "open_windows.h"

#include "x11_property.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint32_t windowLimit = 256;
constexpr std::uint32_t bytesPerWindow = 4;

} // namespace

std::vector<SurveyedWindow> openWindows(X11Connection& x11) {
    auto list = X11Property::ask(
        x11, x11.root(), x11.atom(X11Name::netClientListStacking), bytesPerWindow * windowLimit);
    list.receive(x11);
    auto windows = list.numbers();
    std::ranges::reverse(windows);
    return surveyWindows(x11, windows);
}

} // namespace quillon
