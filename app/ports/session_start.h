#pragma once

namespace quillon {

/// Whether the program starts with the user's session.
class SessionStart {
  public:
    virtual ~SessionStart() = default;

    /// Whether the desktop offers it; without it the switch has no place.
    virtual bool isOffered() const = 0;
    virtual bool isOn() const = 0;
    /// False when it could not be changed; it is then as before.
    virtual bool setOn(bool on) = 0;
};

} // namespace quillon
