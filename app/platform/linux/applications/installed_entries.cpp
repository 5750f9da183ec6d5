#include "desktop_entries.h"

#include <gio/gdesktopappinfo.h>

#include <filesystem>
#include <memory>

namespace quillon {

namespace {

/// Far more than any desktop has; a folder that was filled by mistake must not fill the memory.
constexpr std::size_t entryLimit = 10'000;

struct GFree {
    void operator()(char* text) const { g_free(text); }
};

std::string taken(char* text) {
    const std::unique_ptr<char, GFree> owned(text);
    return owned ? std::string(owned.get()) : std::string();
}

std::string copied(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

DesktopEntry entryOf(GAppInfo* app) {
    GDesktopAppInfo* desktop = G_DESKTOP_APP_INFO(app);
    DesktopEntry entry;
    entry.id = copied(g_app_info_get_id(app));
    constexpr std::string_view suffix = ".desktop";
    if (entry.id.ends_with(suffix))
        entry.id.resize(entry.id.size() - suffix.size());
    entry.name = copied(g_app_info_get_name(app));
    entry.startupWMClass = copied(g_desktop_app_info_get_startup_wm_class(desktop));
    entry.icon = taken(g_desktop_app_info_get_string(desktop, G_KEY_FILE_DESKTOP_KEY_ICON));
    entry.executable = std::filesystem::path(copied(g_app_info_get_executable(app))).filename().string();
    entry.isShown = g_app_info_should_show(app) != FALSE;
    entry.isTerminal =
        (";" + copied(g_desktop_app_info_get_categories(desktop)) + ";").find(";TerminalEmulator;")
        != std::string::npos;
    return entry;
}

} // namespace

DesktopEntries DesktopEntries::installed() {
    std::vector<DesktopEntry> entries;
    GList* apps = g_app_info_get_all();
    for (const GList* it = apps; it != nullptr && entries.size() < entryLimit; it = it->next) {
        if (G_IS_DESKTOP_APP_INFO(it->data))
            entries.push_back(entryOf(G_APP_INFO(it->data)));
    }
    g_list_free_full(apps, g_object_unref);
    return DesktopEntries(std::move(entries));
}

} // namespace quillon
