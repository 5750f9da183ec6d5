#include "launcher_rule.h"

#include "config_files.h"
#include "key_name.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

/// The first modifier that the key is set to alone. Absent where there is no such key.
std::optional<Modifiers> ofSetting(const LauncherSources& sources, const char* schema, const char* key) {
    const auto texts = sources.setting(schema, key);
    if (!texts)
        return std::nullopt;
    for (const std::string& text : *texts)
        if (const Modifiers modifier = modifierAlone(text); !modifier.isEmpty())
            return modifier;
    return Modifiers();
}

Modifiers gnome(const LauncherSources& sources) {
    return ofSetting(sources, "org.gnome.mutter", "overlay-key").value_or(Modifiers::command);
}

/// Its window manager runs a command, which the user may have taken away.
Modifiers pantheon(const LauncherSources& sources) {
    for (const char* const schema :
         {"io.elementary.desktop.wm.behavior", "org.pantheon.desktop.gala.behavior"}) {
        const auto action = sources.setting(schema, "overlay-action");
        if (action && (action->empty() || action->front().empty()))
            return {};
    }
    return gnome(sources);
}

Modifiers cinnamon(const LauncherSources& sources) {
    for (const char* const folder :
         {"cinnamon/spices/menu@cinnamon.org", "../.cinnamon/configs/menu@cinnamon.org"}) {
        for (const std::string& name : sources.folder(folder)) {
            const auto file = sources.file(std::string(folder) + "/" + name);
            if (const auto modifier = file ? launcher::fromCinnamon(*file) : std::nullopt)
                return *modifier;
        }
    }
    return Modifiers::command;
}

Modifiers deepin(const LauncherSources& sources) {
    return ofSetting(sources, "com.deepin.dde.keybinding.system", "launcher").value_or(Modifiers::command);
}

Modifiers unity(const LauncherSources&) {
    return Modifiers::command;
}

Modifiers kde(const LauncherSources& sources) {
    return launcher::fromKWin(sources.file("kwinrc").value_or(std::string()));
}

Modifiers xfce(const LauncherSources& sources) {
    return launcher::fromXfce(sources.file("xfce4/xfconf/xfce-perchannel-xml/xfce4-keyboard-shortcuts.xml")
                                  .value_or(std::string()));
}

Modifiers lxqt(const LauncherSources& sources) {
    return launcher::fromLxqt(sources.file("lxqt/globalkeyshortcuts.conf").value_or(std::string()));
}

/// Only one of its menus opens with a modifier alone.
Modifiers mate(const LauncherSources& sources) {
    return ofSetting(sources, "com.solus-project.brisk-menu", "hot-key").value_or(Modifiers());
}

struct Rule {
    std::string_view desktop;
    Modifiers (*modifier)(const LauncherSources&);
};

constexpr std::array rules{
    Rule{"Pantheon", pantheon}, Rule{"Budgie", gnome},  Rule{"Unity", unity}, Rule{"X-Cinnamon", cinnamon},
    Rule{"Cinnamon", cinnamon}, Rule{"Deepin", deepin}, Rule{"DDE", deepin},  Rule{"KDE", kde},
    Rule{"XFCE", xfce},         Rule{"LXQt", lxqt},     Rule{"MATE", mate},   Rule{"GNOME", gnome},
};

} // namespace

Modifiers launcherModifier(std::string_view desktops, const LauncherSources& sources) {
    while (!desktops.empty()) {
        const std::size_t end = std::min(desktops.find(':'), desktops.size());
        const std::string_view desktop = desktops.substr(0, end);
        desktops.remove_prefix(std::min(end + 1, desktops.size()));
        const auto rule = std::ranges::find(rules, desktop, &Rule::desktop);
        if (rule != rules.end())
            return rule->modifier(sources);
    }
    return {};
}

} // namespace quillon
