#include "appcast.h"

#include "feed_request.h"
#include "release_notes.h"
#include "web_address.h"

#include <QByteArray>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView sparkle = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;
constexpr QLatin1StringView thisSystem = "linux"_L1;

/// What one item of the list says, word for word.
struct Item {
    QString version;
    QString shortVersion;
    QString channel;
    QString system; ///< that its file is for; "" when that is not said
    QString description;
    QString format; ///< of the description; "" for HTML
    QString notesLink;
    QString link;
};

class Reader {
  public:
    explicit Reader(std::string_view bytes)
        : m_xml(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))) {}

    /// Absent when it is no list.
    std::optional<std::vector<Item>> read() {
        if (!findRoot() || m_xml.name() != "rss"_L1)
            return std::nullopt;
        bool hasChannel = false;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "channel"_L1) {
                hasChannel = true;
                readChannel();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        // What comes behind the list must be nothing, too.
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError() || !hasChannel)
            return std::nullopt;
        return std::move(m_items);
    }

  private:
    bool findRoot() {
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::DTD)
                return false;
            if (token == QXmlStreamReader::StartElement)
                return true;
        }
        return false;
    }

    void readChannel() {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "item"_L1 && m_items.size() < Appcast::mostItems)
                readItem();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readItem() {
        Item item;
        while (m_xml.readNextStartElement()) {
            if (m_xml.namespaceUri() == sparkle)
                readOwnElement(item);
            else if (m_xml.namespaceUri().isEmpty())
                readRssElement(item);
            else
                m_xml.skipCurrentElement();
        }
        m_items.push_back(std::move(item));
    }

    void readOwnElement(Item& item) {
        if (m_xml.name() == "version"_L1)
            item.version = text();
        else if (m_xml.name() == "shortVersionString"_L1)
            item.shortVersion = text();
        else if (m_xml.name() == "channel"_L1)
            item.channel = text();
        else if (m_xml.name() == "releaseNotesLink"_L1)
            item.notesLink = text();
        else
            m_xml.skipCurrentElement();
    }

    void readRssElement(Item& item) {
        if (m_xml.name() == "enclosure"_L1) {
            readEnclosure(item);
        } else if (m_xml.name() == "description"_L1) {
            item.format = m_xml.attributes().value(sparkle, "format"_L1).toString();
            item.description = text();
        } else if (m_xml.name() == "link"_L1) {
            item.link = text();
        } else {
            m_xml.skipCurrentElement();
        }
    }

    /// Elements of the item go before attributes of its file, which are the older way to say the same.
    void readEnclosure(Item& item) {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        item.system = attributes.value(sparkle, "os"_L1).toString();
        if (item.version.isEmpty())
            item.version = attributes.value(sparkle, "version"_L1).toString();
        if (item.shortVersion.isEmpty())
            item.shortVersion = attributes.value(sparkle, "shortVersionString"_L1).toString();
        m_xml.skipCurrentElement();
    }

    QString text() { return m_xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed(); }

    QXmlStreamReader m_xml;
    std::vector<Item> m_items;
};

std::string notesOf(const Item& item) {
    const bool isHtml = item.format.isEmpty() || item.format == "html"_L1;
    return isHtml ? ReleaseNotes::fromHtml(item.description) : ReleaseNotes::fromPlainText(item.description);
}

/// The version as people read it is the one that this program bears; the other may count builds.
std::optional<Release> releaseOf(const Item& item) {
    const bool isForThisSystem = item.system.isEmpty() || item.system == thisSystem;
    if (!isForThisSystem || !item.channel.isEmpty())
        return std::nullopt;
    const std::string shown = (item.shortVersion.isEmpty() ? item.version : item.shortVersion).toStdString();
    auto version = ReleaseVersion::fromText(shown);
    if (!version)
        return std::nullopt;
    return Release{
        .version = *std::move(version),
        .shownVersion = QString::fromStdString(shown).trimmed().toStdString(),
        .notes = notesOf(item),
        .notesPage = WebAddress::page(item.notesLink).value_or(""),
        .page = WebAddress::page(item.link).value_or("")};
}

} // namespace

std::optional<std::vector<Release>> Appcast::read(std::string_view bytes) {
    if (bytes.size() > static_cast<std::size_t>(largestFeed))
        return std::nullopt;
    const auto items = Reader(bytes).read();
    if (!items)
        return std::nullopt;
    std::vector<Release> releases;
    for (const Item& item : *items)
        if (auto release = releaseOf(item))
            releases.push_back(*std::move(release));
    return releases;
}

std::optional<Release> newerRelease(const std::vector<Release>& releases, const ReleaseVersion& own) {
    const auto newest = std::ranges::max_element(releases, {}, &Release::version);
    if (newest == releases.end() || newest->version <= own)
        return std::nullopt;
    return *newest;
}

} // namespace quillon
