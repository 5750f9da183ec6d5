#include "pdf_tools.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

namespace quillon {

using namespace Qt::StringLiterals;

PdfTools::PdfTools(const QByteArray& document) {
    QTemporaryFile file(QDir::tempPath() + u"/quillon-XXXXXX.pdf"_s);
    file.setAutoRemove(false);
    if (file.open() && file.write(document) == document.size())
        m_file = file.fileName();
}

PdfTools::~PdfTools() {
    QFile::remove(m_file);
}

QString PdfTools::said(const QString& program, const QStringList& arguments, const char* complaint) const {
    QProcess process;
    QStringList given = arguments;
    given.replaceInStrings(u"FILE"_s, m_file);
    process.start(program, given);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is not there";
    EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
    const QByteArray messages = process.readAllStandardError();
    // Some builds warn of what they were built without.
    EXPECT_TRUE(messages == complaint || messages.startsWith("warning:")) << messages.toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString PdfTools::info(const QString& name) const {
    for (const QString& line : said(u"pdfinfo"_s).split(u'\n'))
        if (line.startsWith(name + u':'))
            return line.mid(name.size() + 1).trimmed();
    return {};
}

} // namespace quillon
