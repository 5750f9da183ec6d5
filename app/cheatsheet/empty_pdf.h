#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

/// A document of no page with this title: the toolkit writes one page at least.
QByteArray emptyPdf(const QString& title);

} // namespace quillon
