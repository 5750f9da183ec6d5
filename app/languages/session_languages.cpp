#include "session_languages.h"

#include <QLocale>

namespace quillon {

using namespace Qt::StringLiterals;

LocaleVariables LocaleVariables::ofProcess() {
    return {
        .all = qEnvironmentVariable("LC_ALL"),
        .messages = qEnvironmentVariable("LC_MESSAGES"),
        .base = qEnvironmentVariable("LANG")};
}

bool isPlainLocale(const LocaleVariables& variables) {
    for (const QString& locale : {variables.all, variables.messages, variables.base}) {
        if (!locale.isEmpty()) {
            const QString name = locale.section(u'.', 0, 0);
            return name == "C"_L1 || name == "POSIX"_L1;
        }
    }
    return true;
}

QStringList sessionLanguages() {
#ifdef Q_OS_MACOS
    return QLocale().uiLanguages();
#else
    return isPlainLocale(LocaleVariables::ofProcess()) ? QStringList() : QLocale::system().uiLanguages();
#endif
}

} // namespace quillon
