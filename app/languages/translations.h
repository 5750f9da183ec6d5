#pragma once

#include "session_languages.h"

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace quillon {

/// Has the program speak another language than English, and with it Qt's own dialogs where their translations
/// are installed. Needs a QCoreApplication, which outlives it. Texts that were asked for earlier stay as they
/// are, so it comes before everything that shows any.
class Translations {
  public:
    /// In the first of these languages ("de-AT", "fr") that the program speaks; with none of them, English.
    explicit Translations(const QStringList& languages = sessionLanguages());

    /// The language that is spoken: "de".
    const QString& language() const { return m_language; }

    /// The languages that the program speaks besides English: "de".
    static QStringList available();

  private:
    QString m_language;
    QTranslator m_texts;
    QTranslator m_toolkitTexts;
};

} // namespace quillon
