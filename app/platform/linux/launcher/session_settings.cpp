#include "session_settings.h"

#include <quillon/app/platform/linux/base/short_file.h>
#include <quillon/app/platform/linux/session/paths.h>

#include <gio/gio.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <sstream>
#include <system_error>

namespace quillon {

namespace {

namespace fs = std::filesystem;

/// A menu has as many files as it has places on the panels.
constexpr std::size_t mostFiles = 16;

struct Unref {
    void operator()(GSettingsSchema* schema) const { g_settings_schema_unref(schema); }
    void operator()(GSettings* settings) const { g_object_unref(settings); }
    void operator()(GVariant* value) const { g_variant_unref(value); }
};

/// A schema or key that is not there would end the program.
bool hasKey(const char* schemaID, const char* key) {
    GSettingsSchemaSource* const source = g_settings_schema_source_get_default();
    const std::unique_ptr<GSettingsSchema, Unref> schema(
        source ? g_settings_schema_source_lookup(source, schemaID, TRUE) : nullptr);
    return schema && g_settings_schema_get_path(schema.get()) != nullptr
           && g_settings_schema_has_key(schema.get(), key) != FALSE;
}

std::optional<std::vector<std::string>> textsOf(const char* schema, const char* key) {
    if (!hasKey(schema, key))
        return std::nullopt;
    const std::unique_ptr<GSettings, Unref> settings(g_settings_new(schema));
    const std::unique_ptr<GVariant, Unref> value(g_settings_get_value(settings.get(), key));
    if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING) != FALSE)
        return std::vector<std::string>{g_variant_get_string(value.get(), nullptr)};
    if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING_ARRAY) == FALSE)
        return std::nullopt;
    std::vector<std::string> texts;
    GVariantIter iterator;
    g_variant_iter_init(&iterator, value.get());
    for (const char* text = nullptr; g_variant_iter_next(&iterator, "&s", &text) != FALSE;)
        texts.emplace_back(text);
    return texts;
}

std::vector<fs::path> configFolders(const Environment& environment) {
    std::vector<fs::path> folders;
    if (fs::path own = configHome(environment); !own.empty())
        folders.push_back(std::move(own));
    std::string shared = environment("XDG_CONFIG_DIRS");
    std::istringstream list(shared.empty() ? "/etc/xdg" : shared);
    for (std::string folder; std::getline(list, folder, ':');)
        if (fs::path(folder).is_absolute())
            folders.emplace_back(folder);
    return folders;
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end && names.size() < mostFiles;
         it.increment(error))
        names.push_back(it->path().filename().string());
    std::ranges::sort(names);
    return names;
}

} // namespace

LauncherSources sessionSettings(const Environment& environment) {
    const std::vector<fs::path> folders = configFolders(environment);
    return {
        .setting = textsOf,
        .file = [folders](const std::string& path) -> std::optional<std::string> {
            for (const fs::path& folder : folders)
                if (auto text = readShortFile(folder / path))
                    return text;
            return std::nullopt;
        },
        .folder =
            [own = configHome(environment)](const std::string& folder) {
                return own.empty() ? std::vector<std::string>() : namesIn(own / folder);
            },
    };
}

} // namespace quillon
