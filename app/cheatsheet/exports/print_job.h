#pragma once

#include <quillon/app/cheatsheet/printed_sheet.h>

#include <QPrinter>
#include <QString>

#include <vector>

namespace quillon {

/// Settings for printing a document of this title: paper across and used to its edges. Everything else is as
/// the system has it.
void setUpPrinter(QPrinter& printer, const QString& title);

/// Which pages a printer is to be given, in this order.
struct PageChoice {
    int first = 0; ///< 0 for all of them
    int last = 0;
    int copies = 1;         ///< that the printer does not make by itself
    bool isCollated = true; ///< one whole copy after the other
    bool isReversed = false;
};
std::vector<int> pagesToPrint(int count, const PageChoice& choice);

/// Prints what the user chose in the dialog, each page as large as the paper has it and turned where it is
/// larger then. False when the printer does not take it.
bool printSheet(QPrinter& printer, const PrintedSheet& sheet);

} // namespace quillon
