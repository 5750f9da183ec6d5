#include "html_scan.h"

#include <algorithm>
#include <array>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

struct Entity {
    QLatin1StringView name;
    char16_t sign;
};

constexpr std::array entities{
    Entity{"amp"_L1, u'&'},         Entity{"lt"_L1, u'<'},          Entity{"gt"_L1, u'>'},
    Entity{"quot"_L1, u'"'},        Entity{"apos"_L1, u'\''},       Entity{"nbsp"_L1, u'\u00a0'},
    Entity{"copy"_L1, u'\u00a9'},   Entity{"middot"_L1, u'\u00b7'}, Entity{"ndash"_L1, u'\u2013'},
    Entity{"mdash"_L1, u'\u2014'},  Entity{"lsquo"_L1, u'\u2018'},  Entity{"rsquo"_L1, u'\u2019'},
    Entity{"ldquo"_L1, u'\u201c'},  Entity{"rdquo"_L1, u'\u201d'},  Entity{"bull"_L1, u'\u2022'},
    Entity{"hellip"_L1, u'\u2026'},
};

constexpr qsizetype longestEntity = 10;

bool isLetter(QChar sign) {
    return (sign >= u'a' && sign <= u'z') || (sign >= u'A' && sign <= u'Z');
}

bool isNameSign(QChar sign) {
    return isLetter(sign) || (sign >= u'0' && sign <= u'9');
}

std::optional<char32_t> numberedSign(QStringView digits) {
    bool isNumber = false;
    const bool isHex = digits.startsWith(u'x') || digits.startsWith(u'X');
    const uint code = isHex ? digits.mid(1).toUInt(&isNumber, 16) : digits.toUInt(&isNumber, 10);
    if (!isNumber || code == 0 || code > 0x10ffff || (code >= 0xd800 && code < 0xe000))
        return std::nullopt;
    return code;
}

/// `name` is what stands between & and ;.
std::optional<QString> signOf(QStringView name) {
    if (name.startsWith(u'#')) {
        const auto code = numberedSign(name.mid(1));
        return code ? std::optional(QString::fromUcs4(&*code, 1)) : std::nullopt;
    }
    const auto known =
        std::ranges::find_if(entities, [&](const Entity& entity) { return name == entity.name; });
    return known == entities.end() ? std::nullopt : std::optional(QString(QChar(known->sign)));
}

QString withoutEntities(QStringView text) {
    QString plain;
    while (!text.isEmpty()) {
        const qsizetype start = text.indexOf(u'&');
        plain += text.left(start < 0 ? text.size() : start);
        if (start < 0)
            break;
        text = text.mid(start);
        const qsizetype end = text.left(longestEntity).indexOf(u';');
        const auto sign = end > 0 ? signOf(text.mid(1, end - 1)) : std::nullopt;
        plain += sign.value_or(u"&"_s);
        text = text.mid(sign ? end + 1 : 1);
    }
    return plain;
}

/// Where a tag ends; quoted values may hold the sign for it. -1 where it does not.
qsizetype endOfTag(QStringView tag) {
    QChar quote;
    for (qsizetype at = 0; at < tag.size(); ++at) {
        const QChar sign = tag[at];
        if (!quote.isNull())
            quote = sign == quote ? QChar() : quote;
        else if (sign == u'"' || sign == u'\'')
            quote = sign;
        else if (sign == u'>')
            return at;
    }
    return -1;
}

QStringView takeAttributeValue(QStringView& attributes) {
    attributes = attributes.mid(1).trimmed();
    const QChar quote = attributes.isEmpty() ? QChar() : attributes[0];
    if (quote == u'"' || quote == u'\'') {
        const qsizetype end = attributes.indexOf(quote, 1);
        const QStringView value = attributes.mid(1, end < 0 ? -1 : end - 1);
        attributes = end < 0 ? QStringView() : attributes.mid(end + 1);
        return value;
    }
    const auto blank = std::ranges::find_if(attributes, [](QChar sign) { return sign.isSpace(); });
    const QStringView value = attributes.left(blank - attributes.begin());
    attributes = attributes.mid(value.size());
    return value;
}

QString linkOf(QStringView attributes) {
    const auto endsName = [](QChar sign) { return sign.isSpace() || sign == u'=' || sign == u'/'; };
    while (true) {
        while (!attributes.isEmpty() && endsName(attributes[0]))
            attributes = attributes.mid(1);
        if (attributes.isEmpty())
            return {};
        const QStringView name =
            attributes.left(std::ranges::find_if(attributes, endsName) - attributes.begin());
        attributes = attributes.mid(name.size()).trimmed();
        if (!attributes.startsWith(u'='))
            continue;
        const QStringView value = takeAttributeValue(attributes);
        if (name.compare("href"_L1, Qt::CaseInsensitive) == 0)
            return withoutEntities(value);
    }
}

} // namespace

std::optional<HtmlPiece> HtmlScan::next() {
    while (!m_rest.isEmpty()) {
        const QChar second = m_rest.size() > 1 ? m_rest[1] : QChar();
        const bool isMarkup =
            m_rest[0] == u'<' && (isLetter(second) || second == u'/' || second == u'!' || second == u'?');
        if (!isMarkup)
            return textPiece();
        if (m_rest.startsWith("<!--"_L1))
            skipComment();
        else if (auto piece = tag())
            return piece;
    }
    return std::nullopt;
}

HtmlPiece HtmlScan::textPiece() {
    const qsizetype end = m_rest.indexOf(u'<', 1);
    const QStringView text = m_rest.left(end < 0 ? m_rest.size() : end);
    m_rest = m_rest.mid(text.size());
    return {.text = withoutEntities(text)};
}

void HtmlScan::skipComment() {
    const qsizetype end = m_rest.indexOf("-->"_L1, 4);
    m_rest = end < 0 ? QStringView() : m_rest.mid(end + 3);
}

std::optional<HtmlPiece> HtmlScan::tag() {
    const qsizetype end = endOfTag(m_rest);
    QStringView inside = m_rest.mid(1, end < 0 ? -1 : end - 1);
    m_rest = end < 0 ? QStringView() : m_rest.mid(end + 1);
    const bool isEnd = inside.startsWith(u'/');
    if (isEnd)
        inside = inside.mid(1);
    const QStringView name = inside.left(std::ranges::find_if_not(inside, isNameSign) - inside.begin());
    if (end < 0 || name.isEmpty())
        return std::nullopt;
    return HtmlPiece{
        .kind = isEnd ? HtmlPiece::Kind::end : HtmlPiece::Kind::begin,
        .text = name.toString().toLower(),
        .link = isEnd ? QString() : linkOf(inside.mid(name.size()))};
}

void HtmlScan::skipElement(QStringView name) {
    const QString end = u"</"_s + name.toString();
    const qsizetype start = m_rest.indexOf(end, 0, Qt::CaseInsensitive);
    m_rest = start < 0 ? QStringView() : m_rest.mid(start);
    tag();
}

} // namespace quillon
