#include "window_icon.h"

#include "x11_property.h"

namespace quillon {

namespace {

constexpr std::uint32_t wantedWidth = 64;
constexpr std::uint32_t largestSide = 256;
/// Room for a picture of the largest size and the usual smaller ones before it.
constexpr std::uint32_t propertyLimit = 4 * 2 * largestSide * largestSide;

struct Picture {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::span<const std::uint32_t> pixels;
};

/// The picture at the beginning of `rest`, which is moved behind it.
std::optional<Picture> takePicture(std::span<const std::uint32_t>& rest) {
    if (rest.size() < 2)
        return std::nullopt;
    const std::uint64_t width = rest[0];
    const std::uint64_t height = rest[1];
    rest = rest.subspan(2);
    if (width == 0 || height == 0 || width * height > rest.size() || width > rest.size())
        return std::nullopt;
    const auto count = static_cast<std::size_t>(width * height);
    const Picture picture{
        static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), rest.first(count)};
    rest = rest.subspan(count);
    return picture;
}

bool isBetter(const Picture& candidate, const Picture& best) {
    if (best.width < wantedWidth)
        return candidate.width > best.width;
    return candidate.width >= wantedWidth && candidate.width < best.width;
}

} // namespace

std::optional<IconPixels> iconFrom(std::span<const std::uint32_t> property) {
    Picture best;
    while (const auto picture = takePicture(property)) {
        const bool fits = picture->width <= largestSide && picture->height <= largestSide;
        if (fits && isBetter(*picture, best))
            best = *picture;
    }
    if (best.width == 0)
        return std::nullopt;
    return IconPixels{
        static_cast<int>(best.width),
        static_cast<int>(best.height),
        {best.pixels.begin(), best.pixels.end()}};
}

std::optional<IconPixels> windowIcon(X11Connection& x11, xcb_window_t window) {
    auto property = X11Property::ask(x11, window, x11.atom(X11Name::netWmIcon), propertyLimit);
    property.receive(x11);
    return iconFrom(property.numbers());
}

} // namespace quillon
