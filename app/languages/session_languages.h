#pragma once

#include <QStringList>

namespace quillon {

/// The variables by which a session tells its language; each empty where it is not set.
struct LocaleVariables {
    QString all = {};      ///< LC_ALL
    QString messages = {}; ///< LC_MESSAGES
    QString base = {};     ///< LANG

    static LocaleVariables ofProcess();
};

/// Whether texts are to be left as they are in the program: the locale is none, "C" or "POSIX". As with
/// gettext, LANGUAGE does not count then.
bool isPlainLocale(const LocaleVariables& variables);

/// The languages that the session's user reads, the preferred first: "de-AT", "en". None in a plain locale.
QStringList sessionLanguages();

} // namespace quillon
