#include "settings_store.h"

#include <filesystem>
#include <system_error>

namespace quillon {

namespace {

/// Opening a pipe waits for whoever writes to it, and a device may never end.
bool canHoldSettings(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found)
        return true;
    if (!std::filesystem::is_regular_file(status))
        return false;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return !error && size <= static_cast<std::uintmax_t>(largestSettingsFile);
}

} // namespace

std::unique_ptr<QSettings> openSettingsStore(const QString& path) {
    if (path.isEmpty() || !canHoldSettings(path.toStdString()))
        return nullptr;
    return std::make_unique<QSettings>(path, QSettings::IniFormat);
}

} // namespace quillon
