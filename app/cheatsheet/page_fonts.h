#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

#include <array>

namespace quillon {

/// What is written in letters of its own on a printed page.
enum class PageFont {
    name,    ///< of the application
    legend,  ///< and the count
    heading, ///< of a menu
    title,   ///< of a command
    cap,     ///< what a key cap shows
    note,
    footer,
};

/// The fonts of printed pages. All measures are in points. Words are measured and drawn large and scaled
/// down, so that they come out the same on every device.
class PageFonts {
  public:
    /// How many units of `font` are a point.
    static constexpr int unitsPerPoint = 20;

    PageFonts();

    /// In units.
    const QFont& font(PageFont which) const { return one(which).font; }
    static double size(PageFont which);

    double width(PageFont which, const QString& text) const;
    double capHeight(PageFont which) const;
    double ascent(PageFont which) const;
    double descent(PageFont which) const;
    /// From one line to the next.
    double lineHeight(PageFont which) const;

    /// The text, or as much of it as fits with an ellipsis behind it; nothing where not even that fits.
    QString elided(PageFont which, const QString& text, double room) const;
    /// The text in lines of at most `room`, broken between words and in those that are longer than a line. Of
    /// more than `most` lines the last ends in an ellipsis.
    QStringList wrapped(PageFont which, const QString& text, double room, int most) const;

  private:
    struct One {
        QFont font;
        QFontMetricsF metrics;
    };

    const One& one(PageFont which) const { return m_fonts[static_cast<std::size_t>(which)]; }

    std::array<One, 7> m_fonts;
};

} // namespace quillon
