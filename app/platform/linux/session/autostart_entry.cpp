#include "autostart_entry.h"

#include "paths.h"

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <memory>
#include <system_error>

namespace quillon::autostart {

namespace {

constexpr const char* group = G_KEY_FILE_DESKTOP_GROUP;
/// As several desktops switch an entry off without hiding it.
constexpr const char* enabledKey = "X-GNOME-Autostart-enabled";

struct Unref {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
    void operator()(GDesktopAppInfo* app) const { g_object_unref(app); }
};
using KeyFile = std::unique_ptr<GKeyFile, Unref>;

KeyFile parsed(const std::string& entry) {
    KeyFile file(g_key_file_new());
    const auto flags = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    if (g_key_file_load_from_data(file.get(), entry.data(), entry.size(), flags, nullptr) == FALSE
        || g_key_file_has_group(file.get(), group) == FALSE)
        return nullptr;
    return file;
}

std::string textOf(GKeyFile* file) {
    gsize length = 0;
    const std::unique_ptr<char, decltype(&g_free)> data(g_key_file_to_data(file, &length, nullptr), g_free);
    return data ? std::string(data.get(), length) : std::string();
}

/// An argument of the key Exec, quoted where it has to be.
std::string execArgument(const std::string& text) {
    constexpr std::string_view reserved = " \t\n\"'\\><~|&;$*?#()`";
    std::string argument;
    for (const char character : text) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos)
            argument += '\\';
        argument += character;
        if (character == '%')
            argument += '%';
    }
    return text.find_first_of(reserved) == std::string::npos ? argument : "\"" + argument + "\"";
}

bool isSame(const std::filesystem::path& one, const std::filesystem::path& other) {
    std::error_code error;
    return std::filesystem::equivalent(one, other, error) && !error;
}

} // namespace

std::string entryFor(const std::string& executable) {
    const KeyFile file(g_key_file_new());
    const auto set = [&](const char* key, const std::string& value) {
        g_key_file_set_string(file.get(), group, key, value.c_str());
    };
    set("Type", "Application");
    set("Name", "Quillon");
    set("Comment", "See the keyboard shortcuts of the application in front");
    set("Exec", execArgument(executable));
    set("TryExec", executable);
    set("Icon", applicationID);
    set("Terminal", "false");
    set("StartupNotify", "false");
    set(enabledKey, "true");
    return textOf(file.get());
}

bool startsProgram(const std::string& entry) {
    const KeyFile file = parsed(entry);
    if (!file)
        return false;
    const std::unique_ptr<GDesktopAppInfo, Unref> app(g_desktop_app_info_new_from_keyfile(file.get()));
    if (!app || g_desktop_app_info_has_key(app.get(), G_KEY_FILE_DESKTOP_KEY_EXEC) == FALSE
        || g_desktop_app_info_get_is_hidden(app.get()) != FALSE
        || g_desktop_app_info_get_show_in(app.get(), nullptr) == FALSE)
        return false;
    return g_desktop_app_info_has_key(app.get(), enabledKey) == FALSE
           || g_desktop_app_info_get_boolean(app.get(), enabledKey) != FALSE;
}

std::optional<std::string> switched(const std::string& entry, bool on) {
    const KeyFile file = parsed(entry);
    if (!file)
        return std::nullopt;
    if (on)
        g_key_file_remove_key(file.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, nullptr);
    else
        g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_HIDDEN, TRUE);
    g_key_file_set_boolean(file.get(), group, enabledKey, on ? TRUE : FALSE);
    return textOf(file.get());
}

std::string nameOf(const std::filesystem::path& executable, std::string_view searchPath) {
    const std::string name = executable.filename().string();
    while (!searchPath.empty()) {
        const std::size_t end = std::min(searchPath.find(':'), searchPath.size());
        const std::filesystem::path folder(searchPath.substr(0, end));
        searchPath.remove_prefix(std::min(end + 1, searchPath.size()));
        std::error_code error;
        if (!folder.is_absolute() || !std::filesystem::exists(folder / name, error))
            continue;
        return isSame(folder / name, executable) ? name : executable.string();
    }
    return executable.string();
}

} // namespace quillon::autostart
