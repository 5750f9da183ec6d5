#include "pdf_tools.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
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

QImage PdfTools::drawnByPoppler(int page, int dotsPerInch) const {
    const QTemporaryDir folder;
    const QString number = QString::number(page);
    said(
        u"pdftoppm"_s, {u"-gray"_s, u"-singlefile"_s, u"-r"_s, QString::number(dotsPerInch), u"-f"_s, number,
                        u"FILE"_s, folder.filePath(u"page"_s)});
    return QImage(folder.filePath(u"page.pgm"_s));
}

QImage PdfTools::drawnByMuPdf(int page, int dotsPerInch) const {
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"page.pgm"_s);
    said(
        u"mutool"_s, {u"draw"_s, u"-q"_s, u"-c"_s, u"gray"_s, u"-r"_s, QString::number(dotsPerInch), u"-o"_s,
                      file, u"FILE"_s, QString::number(page)});
    return QImage(file);
}

} // namespace quillon
