#pragma once

#include <QByteArray>
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

  private:
    QString m_file;
};

} // namespace quillon
