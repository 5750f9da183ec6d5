#include <quillon/app/platform/linux/software/xdg_software_pages.h>
#include <quillon/tests/support/wait_for.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <string>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

/// A search path with nothing but made-up programs, which note what they are called with.
class XdgSoftwarePagesTest : public testing::Test {
  protected:
    XdgSoftwarePagesTest() { qputenv("PATH", folder.path().toUtf8()); }
    ~XdgSoftwarePagesTest() override { qputenv("PATH", path); }

    void install(const QString& program) {
        QFile file(folder.filePath(program));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            "#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\" > \"$0.part\" && /bin/mv \"$0.part\" \"$0.called\"\n");
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    /// What the program was called with; "" when it is not called.
    std::string call(const QString& program) {
        QFile file(folder.filePath(program + u".called"_s));
        if (!waitFor([&] { return file.exists(); }) || !file.open(QIODevice::ReadOnly))
            return "";
        return file.readAll().mid(folder.path().size() + 1).toStdString();
    }

    QByteArray path = qgetenv("PATH");
    QTemporaryDir folder;
    XdgSoftwarePages pages;
};

TEST_F(XdgSoftwarePagesTest, OpensAPageOfTheWeb) {
    install(u"xdg-open"_s);
    EXPECT_TRUE(pages.openPage("https://example.org/a?b=c&d"));
    EXPECT_EQ(call(u"xdg-open"_s), "xdg-open\nhttps://example.org/a?b=c&d\n");
}

TEST_F(XdgSoftwarePagesTest, OpensNothingElse) {
    install(u"xdg-open"_s);
    for (const char* const other :
         {"http://example.org/", "file:///etc/passwd", "--help", "", "https://", "mailto:a@example.org"})
        EXPECT_FALSE(pages.openPage(other)) << other;
    EXPECT_FALSE(QFile::exists(folder.filePath(u"xdg-open.called"_s)));
}

TEST_F(XdgSoftwarePagesTest, TellsThatThereIsNothingToOpenWith) {
    EXPECT_FALSE(pages.openPage("https://example.org/"));
    EXPECT_FALSE(pages.hasSoftwareCentre());
    EXPECT_FALSE(pages.openSoftwareCentre());
}

TEST_F(XdgSoftwarePagesTest, OpensThisProgramInTheSoftwareCentre) {
    install(u"gnome-software"_s);
    EXPECT_TRUE(pages.hasSoftwareCentre());
    EXPECT_TRUE(pages.openSoftwareCentre());
    EXPECT_EQ(call(u"gnome-software"_s), "gnome-software\nappstream:app.quillon.Quillon\n");
}

} // namespace
} // namespace quillon
