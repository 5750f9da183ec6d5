#include "file_name.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostBytes = 255;

/// Control characters, and format characters that turn or hide what stands beside them. Joiners stay: words
/// and emoji are made with them.
bool isUnseen(QChar c) {
    constexpr char16_t nonJoiner = 0x200c;
    constexpr char16_t joiner = 0x200d;
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    case QChar::Other_Format: return c != nonJoiner && c != joiner;
    default: return false;
    }
}

bool hasMeaning(QChar c) {
    return u"/\\:*?\"<>|"_s.contains(c);
}

/// As much of the text as is `most` bytes of UTF-8, cut between letters.
QString cutTo(const QString& text, qsizetype most) {
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    qsizetype bytes = 0;
    while (letters.toNextBoundary() > 0) {
        bytes += QStringView(text).mid(end, letters.position() - end).toUtf8().size();
        if (bytes > most)
            break;
        end = letters.position();
    }
    return text.left(end);
}

/// Without dots and blanks around it.
QString bare(const QString& text) {
    const auto counts = [](QChar c) { return c != u'.' && !c.isSpace(); };
    const auto first = std::find_if(text.begin(), text.end(), counts);
    const auto last = std::find_if(text.rbegin(), text.rend(), counts).base();
    return first < last ? QString(first, last - first) : QString();
}

} // namespace

QString safeFileName(const QString& name, const QString& ending, const QString& fallback) {
    QString safe = name;
    safe.removeIf(isUnseen);
    std::replace_if(safe.begin(), safe.end(), hasMeaning, u'-');
    safe = bare(cutTo(bare(safe), mostBytes - ending.toUtf8().size()));
    return (safe.isEmpty() ? fallback : safe) + ending;
}

} // namespace quillon
