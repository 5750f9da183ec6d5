#include "print_job.h"

#include "page_fit.h"

#include <quillon/app/cheatsheet/page_measures.h>
#include <quillon/app/cheatsheet/page_painter.h>

#include <QMarginsF>
#include <QPageLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

PageChoice choiceOf(const QPrinter& printer) {
    return {
        .first = printer.fromPage(),
        .last = printer.toPage(),
        .copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount(),
        .isCollated = printer.collateCopies(),
        .isReversed = printer.pageOrder() == QPrinter::LastPageFirst};
}

} // namespace

void setUpPrinter(QPrinter& printer, const QString& title) {
    printer.setDocName(title);
    printer.setCreator(u"Quillon"_s);
    printer.setFullPage(true);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageMargins(QMarginsF());
}

std::vector<int> pagesToPrint(int count, const PageChoice& choice) {
    const int first = std::max(1, choice.first);
    const int last = choice.last > 0 ? std::min(choice.last, count) : count;
    std::vector<int> once;
    for (int page = first; page <= last; ++page)
        once.push_back(page);
    if (choice.isReversed)
        std::ranges::reverse(once);
    std::vector<int> pages;
    if (choice.isCollated)
        for (int copy = 0; copy < choice.copies; ++copy)
            pages.insert(pages.end(), once.begin(), once.end());
    else
        for (const int page : once)
            pages.insert(pages.end(), static_cast<std::size_t>(choice.copies), page);
    return pages;
}

bool printSheet(QPrinter& printer, const PrintedSheet& sheet) {
    const PageFonts fonts;
    const QRectF paper(QPointF(), QSizeF(printer.pageLayout().fullRectPixels(printer.resolution()).size()));
    const QTransform fit = fittedTo(paper, {PageMeasures::width, PageMeasures::height});
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    bool isFirst = true;
    for (const int page : pagesToPrint(static_cast<int>(sheet.pages.size()), choiceOf(printer))) {
        if (!isFirst && !printer.newPage())
            return false;
        isFirst = false;
        painter.setTransform(fit);
        paintPage(painter, layOutPage(sheet, page, fonts), fonts);
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace quillon
