#pragma once

#include "x11_connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// Properties of windows are written by their applications: whatever does not have the expected type, or is
/// longer than asked for, is absent or cut.
class X11Property {
  public:
    /// Asks for at most `limit` bytes, rounded up to four, of a property of any type.
    static X11Property ask(X11Connection& x11, xcb_window_t window, xcb_atom_t property, std::uint32_t limit);

    /// Takes the reply. Once, for every property that was asked for.
    void receive(X11Connection& x11) { m_reply = x11.reply<xcb_get_property_reply_t>(m_cookie); }

    /// Whether the server answered and the window exists.
    bool isAnswered() const { return m_reply != nullptr; }
    /// The bytes of a text property; "" when it is missing.
    std::string text() const;
    /// The 32-bit numbers of a property, such as windows, atoms and cardinals.
    std::vector<std::uint32_t> numbers() const;
    /// The first of them.
    std::optional<std::uint32_t> number() const;
    /// The type that it was written with; XCB_ATOM_NONE when it is missing.
    xcb_atom_t type() const { return m_reply ? m_reply->type : static_cast<xcb_atom_t>(XCB_ATOM_NONE); }

  private:
    explicit X11Property(xcb_get_property_cookie_t cookie) : m_cookie(cookie) {}

    xcb_get_property_cookie_t m_cookie;
    X11Reply<xcb_get_property_reply_t> m_reply;
};

/// Latin-1 text, as old properties are written in, as UTF-8.
std::string latin1ToUtf8(const std::string& latin1);

} // namespace quillon
