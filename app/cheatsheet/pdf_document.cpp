#include "pdf_document.h"

#include "empty_pdf.h"
#include "page_measures.h"
#include "page_painter.h"

#include <QBuffer>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int pointsPerInch = 72;
constexpr int unitsPerPoint = 20;

void setUp(QPdfWriter& writer, const QString& title) {
    writer.setTitle(title);
    writer.setCreator(u"Quillon"_s);
    writer.setResolution(pointsPerInch * unitsPerPoint);
    writer.setPageSize(QPageSize(
        QSizeF(PageMeasures::width, PageMeasures::height), QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
}

bool paintPages(QPdfWriter& writer, const PrintedSheet& sheet) {
    const PageFonts fonts;
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    painter.scale(unitsPerPoint, unitsPerPoint);
    for (int number = 1; number <= static_cast<int>(sheet.pages.size()); ++number) {
        if (number > 1 && !writer.newPage())
            return false;
        paintPage(painter, layOutPage(sheet, number, fonts), fonts);
    }
    return painter.end();
}

} // namespace

std::optional<QByteArray> pdfDocument(const PrintedSheet& sheet, const QString& title) {
    if (sheet.pages.empty())
        return emptyPdf(title);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly))
        return std::nullopt;
    QPdfWriter writer(&buffer);
    setUp(writer, title);
    if (!paintPages(writer, sheet))
        return std::nullopt;
    return bytes;
}

} // namespace quillon
