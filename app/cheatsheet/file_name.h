#pragma once

#include <QString>

namespace quillon {

/// `name` with `ending` (".pdf") as the name of one file, which every usual file system takes, those of
/// Windows among them: signs that have a meaning there become "-", whatever cannot be seen goes away, no dots
/// or blanks begin or end it, and all of it is at most 255 bytes of UTF-8, cut between letters. A name of
/// which nothing is left is `fallback`, which is such a name itself.
QString safeFileName(const QString& name, const QString& ending, const QString& fallback);

} // namespace quillon
