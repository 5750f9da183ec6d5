#pragma once

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <optional>
#include <string>

namespace quillon {

enum class ColourScheme { light, dark };

/// How the desktop's user likes things to look.
struct Look {
    ColourScheme scheme = ColourScheme::light;
    std::optional<std::string> fontFamily; ///< the interface font; absent when the desktop does not tell
    std::optional<double> fontPoints;      ///< its size in points, text scaling included

    bool operator==(const Look&) const = default;
};

class Appearance {
  public:
    virtual ~Appearance() = default;

    /// What was last known; never waits. A light look with no font until the desktop has answered.
    virtual Look look() const = 0;
    /// Called on the main thread when `look` changed.
    virtual Subscription onChanged(std::function<void()> callback) = 0;
};

} // namespace quillon
