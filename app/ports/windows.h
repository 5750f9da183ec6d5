#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quillon {

/// The program's windows, opened on demand.
enum class WindowName { welcome, library, practice, settings };

inline constexpr std::array allWindowNames{
    WindowName::welcome, WindowName::library, WindowName::practice, WindowName::settings};

/// What other processes, and this program's own parts, call the window by.
constexpr std::string_view identifier(WindowName name) {
    switch (name) {
    case WindowName::welcome: return "welcome";
    case WindowName::library: return "library";
    case WindowName::practice: return "practice";
    case WindowName::settings: return "settings";
    }
    return "";
}

/// Absent when no window is called so.
constexpr std::optional<WindowName> windowOfIdentifier(std::string_view text) {
    for (const WindowName name : allWindowNames)
        if (identifier(name) == text)
            return name;
    return std::nullopt;
}

/// Opens the program's windows.
class Windows {
  public:
    virtual ~Windows() = default;

    /// Brings the window to the front, made anew if it is not open. Nothing when it is not on offer.
    virtual void open(WindowName name) = 0;
    /// Whether `open` would open the window; views do not offer one that will not open.
    virtual bool offers(WindowName name) const = 0;
    /// Whether the window is the one that is typed into.
    virtual bool hasKeyboard(WindowName name) const = 0;
};

} // namespace quillon
