#pragma once

#include "text_part.h"
#include "theme_source.h"

#include <QLabel>

#include <functional>

namespace quillon {

/// Plain text in one of the theme's styles. One line of it, or as many as there may be, ends in an ellipsis
/// where it does not fit, and tells the whole text in a tooltip. Signs of keys in it are drawn, see
/// `KeyedText`.
class ThemedLabel : public QLabel {
    Q_OBJECT

  public:
    using FontChoice = std::function<QFont(const TextStyles&)>;

    ThemedLabel(ThemeSource& themes, FontChoice font, QColor Palette::*colour, QWidget* parent = nullptr);

    /// Where the text does not fit, this part of it is shortened instead of its end; an empty part for none.
    void setShortenedPart(TextPart part);

    /// Wraps the text to so many lines and no more.
    void setMostLines(int lines);

    /// The text as it is shown in the room that it has.
    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void themeChanged();
    bool isElided() const;
    QString shortenedTo(int width) const;
    /// How much wider the text is than its letters are by themselves.
    int extraWidth() const;

    ThemeSource& m_themes;
    FontChoice m_font;
    QColor Palette::*m_colour;
    TextPart m_shortenedPart;
    int m_mostLines = 0; ///< 0 for what it takes, where it is wrapped
    Subscription m_subscription;
};

} // namespace quillon
