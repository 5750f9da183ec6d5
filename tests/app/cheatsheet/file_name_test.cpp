#include <quillon/app/cheatsheet/file_name.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

QString pdfName(const QString& name) {
    return safeFileName(name, u".pdf"_s, u"Shortcuts"_s);
}

TEST(FileName, AnOrdinaryNameStays) {
    EXPECT_EQ(pdfName(u"Sketchpad Shortcuts"_s), u"Sketchpad Shortcuts.pdf"_s);
    EXPECT_EQ(pdfName(u"Kürzel für Écran, 2.10"_s), u"Kürzel für Écran, 2.10.pdf"_s);
}

TEST(FileName, WhatPartsFoldersAndWhatOtherSystemsRefuseIsReplaced) {
    EXPECT_EQ(pdfName(u"a/b\\c:d*e?f\"g<h>i|j"_s), u"a-b-c-d-e-f-g-h-i-j.pdf"_s);
    EXPECT_EQ(pdfName(u"../../etc/passwd"_s), u"-..-etc-passwd.pdf"_s);
}

TEST(FileName, NothingIsHiddenByADot) {
    EXPECT_EQ(pdfName(u"...secret. "_s), u"secret.pdf"_s);
    EXPECT_EQ(pdfName(u" \t. .name"_s), u"name.pdf"_s);
}

TEST(FileName, WhatCannotBeSeenGoesAway) {
    EXPECT_EQ(pdfName(u"a\0b\nc\x1b[d\x7f"_s), u"abc[d.pdf"_s);
    EXPECT_EQ(pdfName(u"invoice\u202efdp\u2066.exe\u200f\u2028"_s), u"invoicefdp.exe.pdf"_s);
}

TEST(FileName, JoinedEmojiStayJoined) {
    EXPECT_EQ(pdfName(u"👩‍👩‍👧"_s), u"👩‍👩‍👧.pdf"_s);
}

TEST(FileName, OfNothingThatIsLeftTheFallbackIsTaken) {
    EXPECT_EQ(pdfName({}), u"Shortcuts.pdf"_s);
    EXPECT_EQ(pdfName(u" ... "_s), u"Shortcuts.pdf"_s);
    EXPECT_EQ(pdfName(u"\n\u202e"_s), u"Shortcuts.pdf"_s);
}

TEST(FileName, ItFitsIntoABytesLimitAndIsCutBetweenLetters) {
    const auto bytes = [](const QString& name) { return pdfName(name).toUtf8().size(); };
    EXPECT_EQ(bytes(QString(300, u'a')), 255);
    EXPECT_EQ(bytes(QString(251, u'a')), 255);
    EXPECT_EQ(bytes(QString(126, u'é')), 254);
    const QString family = u"👩‍👩‍👧"_s;
    EXPECT_EQ(pdfName(family.repeated(40)), family.repeated(251 / family.toUtf8().size()) + u".pdf"_s);
    EXPECT_EQ(pdfName(u"a"_s + QString(300, u'\u0301')), u"Shortcuts.pdf"_s);
}

TEST(FileName, ACutLeavesNoBlankOrDotBeforeTheEnding) {
    EXPECT_EQ(pdfName(QString(250, u'a') + u" b"_s), QString(250, u'a') + u".pdf"_s);
}

} // namespace
} // namespace quillon
