#pragma once

#include <quillon/app/ports/appearance.h>

#include <QColor>
#include <QPalette>

namespace quillon {

/// The program's one colour of its own.
inline constexpr QColor accentColour = QColor(244, 141, 40); // RGB (0.957, 0.553, 0.157)

/// The colours of one colour scheme. Every text colour keeps a contrast of at least 4.5 : 1 on `window`,
/// `card` and a hovered row.
struct Palette {
    ColourScheme scheme = ColourScheme::light;
    QColor window;       ///< background of panels and windows
    QColor windowBorder; ///< thin line around them
    QColor card;         ///< background of a group of rows
    QColor cardBorder;
    QColor primary;   ///< text; at low opacity the fills and lines of the shared components
    QColor secondary; ///< text that accompanies
    QColor dimmed;    ///< text of commands that cannot be used right now
    QColor accent;
    QColor onAccent;  ///< text on `accent`
    QColor focusRing; ///< around what has the keyboard; at least 3 : 1 on `window` and `card`
    QColor badge;     ///< behind a badge
    QColor badgeText;
    QColor pin;
    QColor hover; ///< over a row under the pointer
    QColor divider;
    QColor shadow;

    /// The primary colour at this opacity (0 to 1).
    QColor primaryAt(double opacity) const;

    /// For the toolkit's own widgets: menus, tooltips, fields.
    QPalette forToolkit() const;

    static Palette forScheme(ColourScheme scheme);

    bool operator==(const Palette&) const = default;
};

} // namespace quillon
