#pragma once

#include <QString>

#include <optional>

namespace quillon {

/// Something that stands in HTML.
struct HtmlPiece {
    enum class Kind { text, begin, end };

    Kind kind = Kind::text;
    QString text = {}; ///< what is read, its entities replaced; of an element its name in lower case
    QString link = {}; ///< of an element's beginning: its "href"; "" for none
};

/// Goes through HTML piece by piece, in one run and whatever state it is in. Comments, declarations and a tag
/// that does not end are passed over.
class HtmlScan {
  public:
    /// `html` outlives it.
    explicit HtmlScan(QStringView html) : m_rest(html) {}

    /// The next piece; absent at the end. A text may come in several.
    std::optional<HtmlPiece> next();

    /// Goes on behind the end of the element that has just begun; to the end of all where it has none.
    void skipElement(QStringView name);

  private:
    std::optional<HtmlPiece> tag();
    HtmlPiece textPiece();
    void skipComment();

    QStringView m_rest;
};

} // namespace quillon
