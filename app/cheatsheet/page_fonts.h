#pragma once

#include <quillon/app/views/components/cap_metrics.h>

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

#include <array>
#include <unordered_map>

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
/// down, so that they come out the same on every device. Widths are measured once: measuring is most of the
/// work on a page, and what is measured comes again. Not for two threads at once.
class PageFonts {
  public:
    /// How many units of `font` are a point.
    static constexpr int unitsPerPoint = 20;

    PageFonts();

    /// In units.
    const QFont& font(PageFont which) const { return one(which).font; }
    static double size(PageFont which);

    double width(PageFont which, const QString& text) const;
    /// Of a key cap that shows this.
    double capWidth(const QString& cap) const;
    /// Where the ink of what a cap shows is, in units.
    QRectF capInk(const QString& cap) const { return m_caps.font().tightBoundingRect(cap); }
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
    using Widths = std::unordered_map<QString, double>;

    struct One {
        QFont font;
        QFontMetricsF metrics;
        mutable Widths widths = {};
    };

    const One& one(PageFont which) const { return m_fonts[static_cast<std::size_t>(which)]; }

    std::array<One, 7> m_fonts;
    CapMetrics m_caps;
    mutable Widths m_capWidths;
};

} // namespace quillon
