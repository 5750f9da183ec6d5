#include <quillon/fuzz/support/law.h>

#include <quillon/app/core/updates/appcast.h>
#include <quillon/app/core/updates/release_notes.h>
#include <quillon/kit/base/unicode.h>

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {
namespace {

/// Elements that are left are a handful, without attributes but a link's, and each is closed in its turn.
void checkNotes(const std::string& notes) {
    QUILLON_LAW(unicode::isValid(notes));
    static const QRegularExpression element(QStringLiteral(
        "<(?:br|(/?)(p|h4|ul|ol|li|b|i|code|a)( href=\"https://[^\"<>]*\" title=\"https://[^\"<>]*\")?)>"));
    QString text = QString::fromStdString(notes);
    QStringList open;
    for (auto matches = element.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString name = match.captured(2);
        if (name.isEmpty())
            continue;
        QUILLON_LAW(
            (name == QLatin1String("a") && match.captured(1).isEmpty()) == !match.captured(3).isEmpty());
        if (match.captured(1).isEmpty())
            open.append(name);
        else
            QUILLON_LAW(!open.isEmpty() && open.takeLast() == name);
    }
    QUILLON_LAW(open.isEmpty());
    QUILLON_LAW(!text.remove(element).contains(u'<'));
}

void checkRelease(const Release& release) {
    QUILLON_LAW(release.version == ReleaseVersion::fromText(release.shownVersion));
    QUILLON_LAW(release.page.empty() || release.page.starts_with("https://"));
    QUILLON_LAW(release.notesPage.empty() || release.notesPage.starts_with("https://"));
    checkNotes(release.notes);
}

void checkVersions(std::string_view text) {
    const auto middle = text.size() / 2;
    const auto one = ReleaseVersion::fromText(text.substr(0, middle));
    const auto other = ReleaseVersion::fromText(text.substr(middle));
    if (!one || !other)
        return;
    QUILLON_LAW((*one == *other) == ((*one <=> *other) == 0));
    QUILLON_LAW((*one < *other) == (*other > *one));
}

} // namespace
} // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto releases = quillon::Appcast::read(bytes))
        for (const quillon::Release& release : *releases)
            quillon::checkRelease(release);
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    quillon::checkNotes(quillon::ReleaseNotes::fromHtml(text));
    quillon::checkNotes(quillon::ReleaseNotes::fromPlainText(text));
    quillon::checkVersions(bytes);
    return 0;
}
