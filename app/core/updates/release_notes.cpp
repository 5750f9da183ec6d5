#include "release_notes.h"

#include "html_scan.h"
#include "web_address.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

namespace quillon::ReleaseNotes {

using namespace Qt::StringLiterals;

namespace {

/// Elements that are open at a time; what is deeper is read without its element.
constexpr qsizetype deepest = 16;

struct Element {
    QLatin1StringView name;
    QLatin1StringView becomes; ///< "" for nothing
};

constexpr std::array elements{
    Element{"p"_L1, "p"_L1},       Element{"div"_L1, "p"_L1},    Element{"section"_L1, "p"_L1},
    Element{"article"_L1, "p"_L1}, Element{"tr"_L1, "p"_L1},     Element{"blockquote"_L1, "p"_L1},
    Element{"pre"_L1, "p"_L1},     Element{"h1"_L1, "h4"_L1},    Element{"h2"_L1, "h4"_L1},
    Element{"h3"_L1, "h4"_L1},     Element{"h4"_L1, "h4"_L1},    Element{"h5"_L1, "h4"_L1},
    Element{"h6"_L1, "h4"_L1},     Element{"ul"_L1, "ul"_L1},    Element{"ol"_L1, "ol"_L1},
    Element{"li"_L1, "li"_L1},     Element{"b"_L1, "b"_L1},      Element{"strong"_L1, "b"_L1},
    Element{"i"_L1, "i"_L1},       Element{"em"_L1, "i"_L1},     Element{"code"_L1, "code"_L1},
    Element{"tt"_L1, "code"_L1},   Element{"kbd"_L1, "code"_L1}, Element{"a"_L1, "a"_L1},
};

/// What these hold is not for reading.
constexpr std::array unread{"script"_L1, "style"_L1, "head"_L1,   "title"_L1,  "template"_L1,
                            "svg"_L1,    "math"_L1,  "iframe"_L1, "object"_L1, "noscript"_L1};

QLatin1StringView keptAs(QStringView name) {
    const auto known =
        std::ranges::find_if(elements, [&](const Element& element) { return name == element.name; });
    return known == elements.end() ? QLatin1StringView() : known->becomes;
}

bool isLine(QLatin1StringView name) {
    return name == "p"_L1 || name == "h4"_L1;
}

/// Signs that do something rather than show something.
bool isHarmless(QChar sign) {
    const char16_t code = sign.unicode();
    const bool turnsText = (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    const bool isControl = (code < 0x20 && code != u'\n' && code != u'\t') || (code >= 0x7f && code < 0xa0);
    return !turnsText && !isControl && code != 0xfeff && code < 0xfffe;
}

QString escaped(QStringView text) {
    QString harmless;
    std::ranges::copy_if(text, std::back_inserter(harmless), isHarmless);
    return harmless.toHtmlEscaped();
}

class Reducer {
  public:
    QString reduce(QStringView html) {
        HtmlScan scan(html);
        while (const auto piece = scan.next())
            take(*piece, scan);
        while (!m_open.isEmpty())
            closeLast();
        return m_reduced;
    }

  private:
    void take(const HtmlPiece& piece, HtmlScan& scan) {
        switch (piece.kind) {
        case HtmlPiece::Kind::text: m_reduced += escaped(piece.text); break;
        case HtmlPiece::Kind::begin: begin(piece, scan); break;
        case HtmlPiece::Kind::end: close(keptAs(piece.text)); break;
        }
    }

    void begin(const HtmlPiece& piece, HtmlScan& scan) {
        if (std::ranges::find(unread, piece.text) != unread.end()) {
            scan.skipElement(piece.text);
        } else if (piece.text == "br"_L1) {
            m_reduced += u"<br>"_s;
        } else if (piece.text == "td"_L1 || piece.text == "th"_L1) {
            m_reduced += u' ';
        } else if (const QLatin1StringView name = keptAs(piece.text); !name.isEmpty()) {
            makeRoomFor(name);
            if (m_open.size() < deepest)
                open(name, piece.link);
        }
    }

    /// No line within a line, no item within an item of the same list, no link within a link.
    void makeRoomFor(QLatin1StringView name) {
        if (isLine(name) || name == "li"_L1 || name == "ul"_L1 || name == "ol"_L1)
            while (!m_open.isEmpty() && !isList(m_open.last()) && m_open.last() != "li"_L1)
                closeLast();
        if (name == "li"_L1) {
            if (!m_open.isEmpty() && m_open.last() == "li"_L1)
                closeLast();
            if (m_open.isEmpty())
                open("ul"_L1, {});
        }
        if (name == "a"_L1)
            close(name);
    }

    static bool isList(QStringView name) { return name == "ul"_L1 || name == "ol"_L1; }

    void open(QLatin1StringView name, const QString& link) {
        if (name == "a"_L1) {
            const auto page = WebAddress::page(link);
            if (!page)
                return;
            const QString address = QString::fromStdString(*page).toHtmlEscaped();
            m_reduced += u"<a href=\"%1\" title=\"%1\">"_s.arg(address);
        } else {
            m_reduced += u"<%1>"_s.arg(name);
        }
        m_open.append(QString(name));
    }

    void close(QLatin1StringView name) {
        if (!m_open.contains(name))
            return;
        while (m_open.last() != name)
            closeLast();
        closeLast();
    }

    void closeLast() { m_reduced += u"</%1>"_s.arg(m_open.takeLast()); }

    QString m_reduced;
    QStringList m_open;
};

} // namespace

std::string fromHtml(QStringView html) {
    return Reducer().reduce(html.left(longest)).trimmed().toStdString();
}

std::string fromPlainText(QStringView text) {
    QString reduced = escaped(text.left(longest).trimmed());
    return reduced.replace(u'\n', u"<br>"_s).toStdString();
}

} // namespace quillon::ReleaseNotes
