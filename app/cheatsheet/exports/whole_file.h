#pragma once

#include <QByteArrayView>
#include <QString>

#include <filesystem>
#include <optional>

namespace quillon {

/// Writes the file as a whole, in the place of one that is there already, or leaves all as it was. Absent
/// when it was written; else the system's reason.
std::optional<QString> writeWhole(const std::filesystem::path& file, QByteArrayView bytes);

} // namespace quillon
