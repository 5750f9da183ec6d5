#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <vector>

namespace quillon {

/// Running text in which the signs of keys ("⌃", "⌘", "⌫") are the program's own drawings, about as high as
/// its capitals: most fonts lack them, and what other fonts have for them differs in size. Arrows, which
/// fonts have and other texts use as well, stay letters.
class KeyedText {
  public:
    /// Whether there are such signs in a text.
    static bool isNeededFor(const QString& text);

    KeyedText(const QString& text, const QFont& font);

    /// On one line; in logical pixels, as all measures here.
    double width() const;
    /// Wrapped to this width, between words where one fits a line.
    double height(double width) const;
    /// As much of the text's beginning as fits so many lines of this width, with an ellipsis where that is
    /// not all of it.
    QString shortened(double width, int lines) const;

    /// Draws one line in the painter's pen, from its trailing end on cut off where it does not fit.
    void paintLine(QPainter& painter, const QRectF& box, Qt::Alignment alignment) const;
    /// Draws the text wrapped to the box.
    void paintWrapped(QPainter& painter, const QRectF& box, Qt::Alignment alignment) const;

  private:
    struct Sign {
        int at; ///< in the text
        QString sign;
    };

    void layOut(QTextLayout& layout, double width, const QTextOption& option) const;
    void
    paint(QPainter& painter, const QRectF& box, Qt::Alignment alignment, QTextOption::WrapMode wrap) const;
    void paintSign(QPainter& painter, const QTextLine& line, QPointF origin, const Sign& sign) const;
    double signSize() const;
    /// How much of the text these lines hold; all of it where it needs no more of them.
    qsizetype lengthOf(double width, int lines) const;

    QString m_whole;
    QString m_text; ///< letters of the right width in the places of the signs
    QFont m_font;
    std::vector<Sign> m_signs;
    QList<QTextLayout::FormatRange> m_formats;
};

} // namespace quillon
