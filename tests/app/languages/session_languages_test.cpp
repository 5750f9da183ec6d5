#include <quillon/app/languages/session_languages.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <map>
#include <string>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(SessionLanguages, AreNoneInAPlainLocale) {
    for (const QString& plain : {u"C"_s, u"POSIX"_s, u"C.UTF-8"_s, QString()}) {
        EXPECT_TRUE(isPlainLocale({.base = plain})) << plain.toStdString();
        EXPECT_TRUE(isPlainLocale({.all = plain, .messages = {}, .base = plain})) << plain.toStdString();
    }
    EXPECT_FALSE(isPlainLocale({.base = u"de_DE.UTF-8"_s}));
    EXPECT_FALSE(isPlainLocale({.base = u"en_GB"_s}));
    EXPECT_FALSE(isPlainLocale({.base = u"ca_ES@valencia"_s}));
}

TEST(SessionLanguages, GoByTheStrongestVariableThatIsSet) {
    EXPECT_TRUE(isPlainLocale({.all = u"C"_s, .messages = u"de_DE"_s, .base = u"de_DE"_s}));
    EXPECT_FALSE(isPlainLocale({.all = u"de_DE"_s, .messages = u"C"_s, .base = u"C"_s}));
    EXPECT_TRUE(isPlainLocale({.messages = u"C"_s, .base = u"de_DE"_s}));
    EXPECT_FALSE(isPlainLocale({.messages = u"fr_FR"_s, .base = u"C"_s}));
}

/// Sets variables and gives them back.
class Environment {
  public:
    explicit Environment(const std::map<std::string, QByteArray>& variables) {
        for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            m_before[name] = qgetenv(name);
            const auto row = variables.find(name);
            row == variables.end() ? qunsetenv(name) : qputenv(name, row->second);
        }
    }
    ~Environment() {
        for (const auto& [name, value] : m_before)
            value.isNull() ? qunsetenv(name.c_str()) : qputenv(name.c_str(), value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    std::map<std::string, QByteArray> m_before;
};

TEST(SessionLanguages, LeaveLanguageAsideInAPlainLocale) {
    const Environment environment({{"LANGUAGE", "de:fr"}, {"LC_ALL", "C.UTF-8"}});
    EXPECT_TRUE(sessionLanguages().isEmpty());
}

} // namespace
} // namespace quillon
