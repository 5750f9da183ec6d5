#pragma once

namespace quillon {

/// The program's windows, opened on demand.
enum class WindowName { welcome, library, practice, settings };

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
