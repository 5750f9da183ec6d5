#pragma once

#include <QSettings>
#include <QString>

#include <cstdint>
#include <memory>

namespace quillon {

/// A file of settings is a few lines; what is larger than this was written by something else. In bytes.
inline constexpr std::int64_t largestSettingsFile = 1 << 20;

/// The INI file at `path`, which need not exist. Null when the path is empty or what is there cannot be a
/// file of settings: a folder, a pipe, a device, more than `largestSettingsFile`. Several may be open at a
/// time, for different keys.
std::unique_ptr<QSettings> openSettingsStore(const QString& path);

} // namespace quillon
