#include "x11_property.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>

namespace quillon {

X11Property
X11Property::ask(X11Connection& x11, xcb_window_t window, xcb_atom_t property, std::uint32_t limit) {
    constexpr std::uint32_t unit = 4;
    return X11Property(xcb_get_property(
        x11.xcb(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, (limit + unit - 1) / unit));
}

std::string X11Property::text() const {
    if (!m_reply || m_reply->format != 8)
        return {};
    const auto* bytes = static_cast<const char*>(xcb_get_property_value(m_reply.get()));
    return {bytes, static_cast<std::size_t>(xcb_get_property_value_length(m_reply.get()))};
}

std::vector<std::uint32_t> X11Property::numbers() const {
    if (!m_reply || m_reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(m_reply.get()));
    return {values, values + m_reply->value_len};
}

std::optional<std::uint32_t> X11Property::number() const {
    const auto all = numbers();
    return all.empty() ? std::nullopt : std::optional(all.front());
}

std::string latin1ToUtf8(const std::string& latin1) {
    std::string result;
    for (const char byte : latin1)
        unicode::append(result, static_cast<unsigned char>(byte));
    return result;
}

} // namespace quillon
