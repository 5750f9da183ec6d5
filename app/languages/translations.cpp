#include "translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ownTexts = ":/quillon/languages"_L1;

/// "de" of "de-AT", "de_AT.UTF-8" and "de@euro".
QString languageOf(const QString& locale) {
    qsizetype end = 0;
    while (end < locale.size() && locale.at(end).isLetter())
        ++end;
    return locale.first(end).toLower();
}

QString chosen(const QStringList& locales) {
    const QStringList available = Translations::available();
    for (const QString& locale : locales) {
        const QString language = languageOf(locale);
        if (language == "en"_L1 || available.contains(language))
            return language;
    }
    return u"en"_s;
}

} // namespace

QStringList Translations::available() {
    QStringList languages;
    // Every file here is a translation. Picking them by a pattern would load regular expressions for good.
    for (const QString& file : QDir(ownTexts).entryList(QDir::Files, QDir::Name))
        languages.append(file.section(u'_', 1).section(u'.', 0, 0));
    return languages;
}

Translations::Translations(const QStringList& languages) : m_language(chosen(languages)) {
    if (m_language == "en"_L1)
        return;
    const QString toolkitFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (m_toolkitTexts.load(u"qtbase_"_s + m_language, toolkitFolder))
        QCoreApplication::installTranslator(&m_toolkitTexts);
    if (m_texts.load(u"quillon_"_s + m_language, ownTexts))
        QCoreApplication::installTranslator(&m_texts);
}

} // namespace quillon
