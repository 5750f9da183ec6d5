#pragma once

#include "printed_sheet.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// The document with this title; one page for each of the sheet's, and none for none. Absent when the toolkit
/// cannot write it.
std::optional<QByteArray> pdfDocument(const PrintedSheet& sheet, const QString& title);

} // namespace quillon
