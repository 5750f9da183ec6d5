#pragma once

namespace quillon {

/// How the overlay is used.
enum class OverlayMode {
    live,    ///< over the front application
    showcase ///< as an example, with sample data; needs no permission
};

/// What the overlay's main area shows.
enum class OverlayState {
    needsAccessibility,
    noSheet,
    reading,
    noShortcuts,
    noAnswer, ///< no shortcuts are known, and the application did not answer when it was asked last
    shortcuts
};

/// What the state depends on.
struct OverlayFacts {
    OverlayMode mode = OverlayMode::live;
    bool trusted = false;
    bool hasSheet = false;
    bool hasEntries = false;
    bool reading = false;
    bool answered = true;  ///< when the application was read last
    bool retrying = false; ///< it is read once more because it did not answer
};

OverlayState overlayState(const OverlayFacts& facts);

} // namespace quillon
