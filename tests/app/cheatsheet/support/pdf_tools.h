#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

namespace quillon {

/// A document in a file of its own, as long as this lives, and what tools that read PDF say of it.
class PdfTools {
  public:
    explicit PdfTools(const QByteArray& document);
    ~PdfTools();
    PdfTools(const PdfTools&) = delete;
    PdfTools& operator=(const PdfTools&) = delete;

    /// What a program of this name prints; "FILE" among its arguments is the document. A program that is
    /// missing, fails or complains of anything but `complaint` fails the test.
    QString said(
        const QString& program, const QStringList& arguments = {QStringLiteral("FILE")},
        const char* complaint = "") const;
    /// What `pdfinfo` says under this name; empty for nothing.
    QString info(const QString& name) const;

    /// The page, counted from 1, as Poppler and as MuPDF draw it, in greys.
    QImage drawnByPoppler(int page, int dotsPerInch) const;
    QImage drawnByMuPdf(int page, int dotsPerInch) const;

  private:
    QString m_file;
};

} // namespace quillon
