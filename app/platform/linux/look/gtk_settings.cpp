#include "gtk_settings.h"

#include <quillon/app/platform/linux/base/short_file.h>

#include <glib.h>

#include <memory>
#include <string>

namespace quillon {

namespace {

constexpr const char* group = "Settings";

struct Unref {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};

std::optional<std::string> text(GKeyFile* file, const char* key) {
    const std::unique_ptr<char, decltype(&g_free)> value(
        g_key_file_get_string(file, group, key, nullptr), g_free);
    return value ? std::optional<std::string>(value.get()) : std::nullopt;
}

/// GTK reads 1 and true alike.
std::optional<bool> flag(GKeyFile* file, const char* key) {
    const auto value = text(file, key);
    if (!value)
        return std::nullopt;
    return *value == "1" || *value == "true" || *value == "TRUE" || *value == "True";
}

} // namespace

DesktopSettings readGtkSettings(const std::filesystem::path& path) {
    const std::unique_ptr<GKeyFile, Unref> file(g_key_file_new());
    DesktopSettings settings;
    const std::string bytes = readShortFile(path).value_or(std::string());
    if (g_key_file_load_from_data(file.get(), bytes.data(), bytes.size(), G_KEY_FILE_NONE, nullptr) == FALSE)
        return settings;
    settings.gtkTheme = text(file.get(), "gtk-theme-name");
    settings.preferDarkTheme = flag(file.get(), "gtk-application-prefer-dark-theme");
    settings.font = text(file.get(), "gtk-font-name");
    return settings;
}

} // namespace quillon
