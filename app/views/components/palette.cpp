#include "palette.h"

#include "colours.h"

namespace quillon {

namespace {

Palette lightPalette() {
    const QColor primary(0x1f, 0x1c, 0x1a);
    const QColor window(0xf6, 0xf4, 0xf1);
    return Palette{
        .scheme = ColourScheme::light,
        .window = window,
        .windowBorder = Colours::withOpacity(primary, 0.16),
        .card = QColor(0xff, 0xff, 0xff),
        .cardBorder = Colours::withOpacity(primary, 0.08),
        .primary = primary,
        .secondary = QColor(0x68, 0x63, 0x5e),
        .dimmed = QColor(0x64, 0x60, 0x5c),
        .accent = accentColour,
        .onAccent = QColor(0x29, 0x16, 0x02),
        .focusRing = QColor(0xc9, 0x66, 0x05),
        .badge = Colours::withOpacity(accentColour, 0.16),
        .badgeText = QColor(0x8a, 0x45, 0x04),
        .pin = QColor(0xd9, 0x73, 0x10),
        .hover = Colours::withOpacity(primary, 0.05),
        .divider = Colours::withOpacity(primary, 0.10),
        .shadow = QColor(0x2a, 0x1c, 0x10),
    };
}

Palette darkPalette() {
    const QColor primary(0xf5, 0xf2, 0xee);
    return Palette{
        .scheme = ColourScheme::dark,
        .window = QColor(0x1d, 0x1c, 0x1b),
        .windowBorder = Colours::withOpacity(primary, 0.20),
        .card = QColor(0x28, 0x26, 0x25),
        .cardBorder = Colours::withOpacity(primary, 0.07),
        .primary = primary,
        .secondary = QColor(0xaf, 0xa9, 0xa3),
        .dimmed = QColor(0xb2, 0xad, 0xa8),
        .accent = accentColour,
        .onAccent = QColor(0x29, 0x16, 0x02),
        .focusRing = accentColour,
        .badge = Colours::withOpacity(accentColour, 0.20),
        .badgeText = QColor(0xff, 0xc0, 0x82),
        .pin = accentColour,
        .hover = Colours::withOpacity(primary, 0.06),
        .divider = Colours::withOpacity(primary, 0.12),
        .shadow = QColor(0x00, 0x00, 0x00),
    };
}

} // namespace

QColor Palette::primaryAt(double opacity) const {
    return Colours::withOpacity(primary, opacity);
}

Palette Palette::forScheme(ColourScheme scheme) {
    return scheme == ColourScheme::dark ? darkPalette() : lightPalette();
}

QPalette Palette::forToolkit() const {
    QPalette palette(primary, window, card, window, primaryAt(0.3), primary, primary, card, window);
    palette.setColor(QPalette::Button, Colours::over(primaryAt(0.05), window));
    palette.setColor(QPalette::ButtonText, primary);
    palette.setColor(QPalette::Base, card);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, primary);
    palette.setColor(QPalette::PlaceholderText, secondary);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::ToolTipBase, card);
    palette.setColor(QPalette::ToolTipText, primary);
    palette.setColor(QPalette::Link, badgeText);
    palette.setColor(QPalette::Shadow, shadow);
    palette.setColor(QPalette::Mid, Colours::over(windowBorder, window));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, secondary);
    return palette;
}

} // namespace quillon
