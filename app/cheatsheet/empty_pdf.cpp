#include "empty_pdf.h"

#include <QStringEncoder>

#include <vector>

namespace quillon {

namespace {

/// A text of the document, in UTF-16 and written in hexadecimal digits.
QByteArray hexText(const QString& text) {
    QStringEncoder encode(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
    const QByteArray bytes = encode(text);
    return "<" + bytes.toHex() + ">";
}

/// Numbers the objects and remembers where each begins.
class PdfObjects {
  public:
    void add(const QByteArray& content) {
        m_starts.push_back(m_bytes.size());
        m_bytes +=
            QByteArray::number(static_cast<qsizetype>(m_starts.size())) + " 0 obj\n" + content + "\nendobj\n";
    }

    /// The whole document; its first object is the catalogue, its last one tells its title.
    QByteArray finished() && {
        const qsizetype table = m_bytes.size();
        const QByteArray size = QByteArray::number(static_cast<qsizetype>(m_starts.size()) + 1);
        m_bytes += "xref\n0 " + size + "\n0000000000 65535 f \n";
        for (const qsizetype start : m_starts)
            m_bytes += QByteArray::number(start).rightJustified(10, '0') + " 00000 n \n";
        m_bytes += "trailer\n<< /Size " + size + " /Root 1 0 R /Info "
                   + QByteArray::number(static_cast<qsizetype>(m_starts.size())) + " 0 R >>\nstartxref\n"
                   + QByteArray::number(table) + "\n%%EOF\n";
        return std::move(m_bytes);
    }

  private:
    QByteArray m_bytes = "%PDF-1.4\n%\xc3\xa2\xc3\xa3\n";
    std::vector<qsizetype> m_starts;
};

} // namespace

QByteArray emptyPdf(const QString& title) {
    PdfObjects objects;
    objects.add("<< /Type /Catalog /Pages 2 0 R >>");
    objects.add("<< /Type /Pages /Kids [] /Count 0 >>");
    objects.add("<< /Title " + hexText(title) + " /Creator " + hexText(QStringLiteral("Quillon")) + " >>");
    return std::move(objects).finished();
}

} // namespace quillon
