#include "column_layout.h"

#include "caps_layout.h"
#include "cheat_sheet_texts.h"

#include <quillon/app/views/components/foreign_text.h>
#include <quillon/app/views/components/text.h>

#include <algorithm>

namespace quillon {

namespace {

/// Thirty lines, every other one a heading, are lower than a column.
constexpr double headingHeight = 22.5;
constexpr double itemHeight = 19.5;
/// Around the lines of a note.
constexpr double notePadding = 1.5;
constexpr int mostNoteLines = 8;

constexpr double ruleBelowHeading = 4;
constexpr double belowRule = 2.5;
constexpr double noteIndent = 6;
constexpr double titleGap = 6; ///< between a title and its keys
constexpr double pinSize = 7;
constexpr double pinGap = 2.5;
/// The most of a column that keys take.
constexpr double keysShare = 0.62;

/// One line of the sheet, made ready for its column.
struct Row {
    const CheatSheet::Line& line;
    QStringList noteLines = {}; ///< all that it would need, up to the most
    int shownLines = 0;         ///< of these
    double height = 0;
};

/// The user's own words on one line: blanks for line breaks and tabs.
QString noteText(const std::string& note) {
    return foreignLine(utf8(singleLine(note)));
}

Row rowOf(const CheatSheet::Line& line, double width, const PageFonts& fonts) {
    if (std::holds_alternative<CheatSheet::Heading>(line))
        return {.line = line, .height = headingHeight};
    if (std::holds_alternative<CheatSheet::Item>(line))
        return {.line = line, .height = itemHeight};
    const QString text = noteText(std::get<CheatSheet::Note>(line).text);
    return {
        .line = line,
        .noteLines = fonts.wrapped(PageFont::note, text, width - noteIndent, mostNoteLines),
        .shownLines = 1,
        .height = fonts.lineHeight(PageFont::note) + notePadding};
}

double heightOf(const std::vector<Row>& rows) {
    double height = 0;
    for (const Row& row : rows)
        height += row.height;
    return height;
}

/// Gives every note that needs one a line more, again and again, while there is height to spare.
void growNotes(std::vector<Row>& rows, double spare, double line) {
    for (int lines = 1; lines < mostNoteLines; ++lines) {
        for (Row& row : rows) {
            if (row.noteLines.size() <= lines || spare < line)
                continue;
            row.shownLines = lines + 1;
            row.height += line;
            spare -= line;
        }
    }
}

std::vector<Row> rowsOf(const CheatSheet::Column& column, const QSizeF& room, const PageFonts& fonts) {
    std::vector<Row> rows;
    rows.reserve(column.size());
    for (const CheatSheet::Line& line : column)
        rows.push_back(rowOf(line, room.width(), fonts));
    const double needed = heightOf(rows);
    growNotes(rows, room.height() - needed, fonts.lineHeight(PageFont::note));
    if (needed > room.height())
        for (Row& row : rows)
            row.height *= room.height() / needed;
    return rows;
}

/// Places the lines of one column, each in its own box.
class LinePlacer {
  public:
    LinePlacer(const PrintedSheet& sheet, const PageFonts& fonts, PageLayout& page)
        : m_sheet(sheet), m_fonts(fonts), m_page(page) {}

    void place(const Row& row, const QRectF& box) {
        if (const auto* heading = std::get_if<CheatSheet::Heading>(&row.line))
            place(*heading, box);
        else if (const auto* item = std::get_if<CheatSheet::Item>(&row.line))
            place(*item, box);
        else
            placeNote(row, box);
    }

  private:
    void place(const CheatSheet::Heading& heading, const QRectF& box) {
        const double rule = box.bottom() - belowRule;
        place(headingText(heading, box.width()), {box.left(), rule - ruleBelowHeading}, PageFont::heading);
        m_page.emplace_back(PlacedRule{{box.left(), rule}, box.width()});
    }

    /// The name is shortened where needed; that it goes on is always told.
    QString headingText(const CheatSheet::Heading& heading, double room) const {
        const QString name = CheatSheetTexts::heading(foreignLine(heading.text));
        if (!heading.continued)
            return m_fonts.elided(PageFont::heading, name, room);
        const double others = m_fonts.width(PageFont::heading, CheatSheetTexts::continued({}));
        return CheatSheetTexts::continued(m_fonts.elided(PageFont::heading, name, room - others));
    }

    void place(const CheatSheet::Item& item, const QRectF& box) {
        const double middle = box.center().y();
        const auto caps = m_sheet.caps.find(item.shortcut);
        const CapRow keys = CapRow::of(
            caps == m_sheet.caps.end() ? QStringList{text(item.shortcut)} : caps->second,
            box.width() * keysShare, m_fonts);
        const double pin = item.pinned ? pinGap + pinSize : 0;
        const QString title = m_fonts.elided(
            PageFont::title, foreignLine(item.title), box.width() - keys.width - titleGap - pin);
        const QPointF start(box.left(), middle + m_fonts.capHeight(PageFont::title) / 2);
        place(title, start, PageFont::title);
        if (item.pinned) {
            const double left = start.x() + m_fonts.width(PageFont::title, title) + pinGap;
            m_page.emplace_back(PlacedPin{{left, middle - pinSize / 2, pinSize, pinSize}});
        }
        keys.place({box.right() - keys.width, middle}, m_fonts, m_page);
    }

    void placeNote(const Row& row, const QRectF& box) {
        const double room = box.width() - noteIndent;
        const double line = m_fonts.lineHeight(PageFont::note);
        double baseline = box.top() + m_fonts.ascent(PageFont::note);
        for (int i = 0; i < row.shownLines && i < row.noteLines.size(); ++i) {
            const bool isCut = i + 1 == row.shownLines && row.shownLines < row.noteLines.size();
            const QString shown = isCut ? cutLine(row.noteLines.sliced(i), room) : row.noteLines.at(i);
            place(shown, {box.left() + noteIndent, baseline}, PageFont::note, PageInk::note);
            baseline += line;
        }
    }

    /// The first of these lines, with the sign that more would follow.
    QString cutLine(const QStringList& lines, double room) const {
        return m_fonts.elided(PageFont::note, lines.join(u' '), room);
    }

    void place(const QString& words, QPointF start, PageFont font, PageInk ink = PageInk::primary) {
        if (!words.isEmpty())
            m_page.emplace_back(PlacedText{
                .start = start,
                .width = m_fonts.width(font, words),
                .font = font,
                .ink = ink,
                .text = words});
    }

    const PrintedSheet& m_sheet;
    const PageFonts& m_fonts;
    PageLayout& m_page;
};

} // namespace

void layOutColumn(
    const CheatSheet::Column& column, const QRectF& room, const PrintedSheet& sheet, const PageFonts& fonts,
    PageLayout& page) {
    LinePlacer placer(sheet, fonts, page);
    double top = room.top();
    for (const Row& row : rowsOf(column, room.size(), fonts)) {
        placer.place(row, {room.left(), top, room.width(), row.height});
        top += row.height;
    }
}

} // namespace quillon
