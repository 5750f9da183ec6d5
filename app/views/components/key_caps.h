#pragma once

#include "cap_metrics.h"
#include "theme.h"

#include <quillon/kit/shortcut/key_names.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QStringList>

#include <memory>
#include <unordered_map>

namespace quillon {

/// What each cap of a shortcut shows: one per modifier in the order ⌃⌥⇧⌘, then the key; by these names, or by
/// symbols where they are null. Signs among them are drawn as the program's own pictograms.
QStringList capTexts(const Shortcut& shortcut, const KeyNames* names);

struct Ink;

enum class CapEmphasis {
    plain,
    prominent ///< stronger fill, for the shortcut that is being taught
};

/// Measures and draws shortcuts as rows of key caps, in one size and theme. Each cap shows its ink in its
/// middle, whatever room its font leaves around it. Remembers what it has measured and drawn.
class KeyCaps {
  public:
    /// `size` is the caps' font size in logical pixels; every other measure scales from it.
    KeyCaps(const Theme& theme, double size, CapEmphasis emphasis = CapEmphasis::plain);

    /// In logical pixels; whole numbers.
    double width(const Shortcut& shortcut) const;
    double height() const { return m_height; }
    /// From the top of a cap down to the line that its text stands on.
    double baseline() const { return m_baseline; }
    /// The same as it is drawn for a screen with `ratio` device pixels each: between whole device pixels
    /// where letters end in these.
    double baseline(double ratio) const;

    void paint(QPainter& painter, QPointF topLeft, const Shortcut& shortcut) const;

  private:
    double capWidth(const QString& cap) const;
    Ink inkOf(const QString& cap, double ratio) const;
    void drawInk(QPainter& painter, const QString& cap, QSize room, double ratio) const;
    const QPixmap& capPixmap(const QString& cap, double ratio) const;
    QPixmap drawCap(const QString& cap, double ratio) const;

    Palette m_palette;
    std::shared_ptr<const KeyNames> m_names;
    QFont m_font;
    CapMetrics m_metrics;
    double m_size;
    CapEmphasis m_emphasis;
    double m_height;
    double m_baseline;
    mutable std::unordered_map<Shortcut, double> m_widths;
    mutable QHash<QString, QPixmap> m_pixmaps;
    mutable double m_pixmapRatio = 1;
};

} // namespace quillon
