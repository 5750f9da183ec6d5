#include "foreign_text.h"

#include "text.h"

namespace quillon {

namespace {

constexpr char16_t lineBreakSign = u'\u2424';
constexpr char16_t deleteSign = u'\u2421';
constexpr char16_t firstControlSign = u'\u2400';
constexpr char16_t unknownSign = u'\ufffd';
/// Written languages need no more.
constexpr int mostAccents = 4;

bool isLineBreak(QChar c) {
    const char16_t code = c.unicode();
    return (code >= 0x0a && code <= 0x0d) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

/// Embeddings, overrides and isolates, which reach beyond the letters next to them, and format characters
/// that mark up text.
bool isMarkup(QChar c) {
    const char16_t code = c.unicode();
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x206f)
           || (code >= 0xfff9 && code <= 0xfffb) || code == 0xfeff;
}

QChar shown(QChar c) {
    if (isLineBreak(c))
        return lineBreakSign;
    if (isMarkup(c))
        return unknownSign;
    if (c.category() != QChar::Other_Control || c.isSpace())
        return c;
    if (c.unicode() < 0x20)
        return static_cast<char16_t>(firstControlSign + c.unicode());
    return c.unicode() == 0x7f ? deleteSign : unknownSign;
}

bool isAccent(QChar c) {
    return c.category() == QChar::Mark_NonSpacing || c.category() == QChar::Mark_Enclosing;
}

} // namespace

QString foreignLine(std::string_view utf8) {
    QString given = text(utf8);
    given.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QString line;
    line.reserve(given.size());
    int accents = 0;
    for (const QChar c : std::as_const(given)) {
        accents = isAccent(c) ? accents + 1 : 0;
        if (accents <= mostAccents)
            line.append(shown(c));
    }
    return line.simplified();
}

} // namespace quillon
