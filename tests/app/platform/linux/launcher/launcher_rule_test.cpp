#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/linux/launcher/config_files.h>
#include <quillon/app/platform/linux/launcher/desktop_launcher_key.h>
#include <quillon/app/platform/linux/launcher/key_name.h>
#include <quillon/app/platform/linux/launcher/launcher_rule.h>

#include <gtest/gtest.h>

#include <map>

namespace quillon {
namespace {

constexpr Modifiers none;

/// A desktop's settings, by "schema key", by path and by folder.
struct MadeUp {
    std::map<std::string, std::vector<std::string>> settings = {};
    std::map<std::string, std::string> files = {};
    std::map<std::string, std::vector<std::string>> folders = {};

    Modifiers launcher(std::string_view desktops) const { return launcherModifier(desktops, sources()); }

    LauncherSources sources() const {
        return {
            .setting =
                [this](const char* schema, const char* key) {
                    return of(settings, std::string(schema) + " " + key);
                },
            .file = [this](const std::string& path) { return of(files, path); },
            .folder =
                [this](const std::string& folder) {
                    return of(folders, folder).value_or(std::vector<std::string>());
                },
        };
    }

    template <class Value>
    static std::optional<Value> of(const std::map<std::string, Value>& all, const std::string& key) {
        const auto found = all.find(key);
        return found == all.end() ? std::nullopt : std::optional(found->second);
    }
};

TEST(ModifierAloneTest, KnowsTheNamesThatDesktopsWrite) {
    for (const char* name :
         {"Super_L", "Super_R", "<Super>", "super", "Meta", "<Mod4>", "Super_L::Super_R", "<Super_L>"})
        EXPECT_EQ(modifierAlone(name), Modifiers::command) << name;
    EXPECT_EQ(modifierAlone("Alt_R"), Modifiers::option);
    EXPECT_EQ(modifierAlone("Control_L"), Modifiers::control);
    for (const char* name : {"", "disabled", "<Super>s", "<Alt>F1", "Super_L+Space", "::", "Menu"})
        EXPECT_EQ(modifierAlone(name), none) << name;
}

TEST(LauncherRuleTest, DesktopsWithoutALauncherKeyHaveNone) {
    for (const char* desktops : {"", ":", "i3", "openbox", "sway", "GNOMEX", "LXDE", "MATE", "LXQt", "XFCE"})
        EXPECT_EQ(MadeUp().launcher(desktops), none) << desktops;
}

TEST(LauncherRuleTest, MostLargeDesktopsUseSuperByDefault) {
    for (const char* desktops :
         {"GNOME", "ubuntu:GNOME", "GNOME-Classic:GNOME", "Budgie:GNOME", "Pantheon", "KDE", "X-Cinnamon",
          "Deepin", "DDE", "Unity:Unity7:ubuntu"})
        EXPECT_EQ(MadeUp().launcher(desktops), Modifiers::command) << desktops;
}

TEST(LauncherRuleTest, GnomesOverlayKeyDecides) {
    const auto with = [](const char* key) {
        return MadeUp{.settings = {{"org.gnome.mutter overlay-key", {key}}}}.launcher("ubuntu:GNOME");
    };
    EXPECT_EQ(with("Super_L"), Modifiers::command);
    EXPECT_EQ(with("Alt_L"), Modifiers::option);
    EXPECT_EQ(with(""), none);
}

TEST(LauncherRuleTest, ThePantheonRunsACommandOrNothing) {
    const auto with = [](const char* schema, const char* action) {
        return MadeUp{.settings = {{std::string(schema) + " overlay-action", {action}}}}.launcher("Pantheon");
    };
    EXPECT_EQ(with("org.pantheon.desktop.gala.behavior", "a launcher"), Modifiers::command);
    EXPECT_EQ(with("org.pantheon.desktop.gala.behavior", ""), none);
    EXPECT_EQ(with("io.elementary.desktop.wm.behavior", ""), none);
}

TEST(LauncherRuleTest, DeepinAndMateTellInTheirOwnKeys) {
    const auto deepin = [](std::vector<std::string> keys) {
        return MadeUp{.settings = {{"com.deepin.dde.keybinding.system launcher", std::move(keys)}}}.launcher(
            "Deepin");
    };
    EXPECT_EQ(deepin({"<Alt>F1", "Super_L"}), Modifiers::command);
    EXPECT_EQ(deepin({}), none);
    EXPECT_EQ(
        (MadeUp{.settings = {{"com.solus-project.brisk-menu hot-key", {"Super_L"}}}}.launcher("MATE")),
        Modifiers::command);
}

TEST(LauncherRuleTest, KWinTellsWhatModifiersDoAlone) {
    const auto with = [](const char* kwinrc) {
        return MadeUp{.files = {{"kwinrc", kwinrc}}}.launcher("KDE");
    };
    EXPECT_EQ(with(""), Modifiers::command);
    EXPECT_EQ(with("[Windows]\nA=1\n"), Modifiers::command);
    EXPECT_EQ(with("[ModifierOnlyShortcuts]\nMeta=\n"), none);
    EXPECT_EQ(with("[ModifierOnlyShortcuts]\nMeta=none\n"), none);
    EXPECT_EQ(
        with("[ModifierOnlyShortcuts]\nMeta=\nAlt=org.kde.kglobalaccel,/component/kwin,,x\n"),
        Modifiers::option);
    EXPECT_EQ(with("[ModifierOnlyShortcuts]\nMeta=org.kde.krunner,/App,,toggle\n"), Modifiers::command);
    EXPECT_EQ(with("broken"), Modifiers::command);
}

TEST(LauncherRuleTest, CinnamonsMenuTells) {
    const std::string folder = "cinnamon/spices/menu@cinnamon.org";
    const auto with = [&](const char* json) {
        return MadeUp{.files = {{folder + "/0.json", json}}, .folders = {{folder, {"0.json"}}}}.launcher(
            "X-Cinnamon");
    };
    EXPECT_EQ(
        with(R"({"overlay-key": {"type": "keybinding", "value": "Super_L::Super_R"}})"), Modifiers::command);
    EXPECT_EQ(with(R"({"overlay-key": {"value": "::"}})"), none);
    EXPECT_EQ(with(R"({"overlay-key": {"value": "<Alt>F1::"}})"), none);
    EXPECT_EQ(with("{}"), Modifiers::command);
    EXPECT_EQ(with("broken"), Modifiers::command);
}

std::string xfce(const std::string& usual, const std::string& own) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-keyboard-shortcuts" version="1.0"><property name="commands" type="empty">
<property name="default" type="empty">)"
           + usual + R"(</property><property name="custom" type="empty">)" + own + R"(</property></property>
<property name="xfwm4" type="empty"><property name="custom" type="empty">
<property name="Super_L" type="string" value="show_desktop_key"/></property></property></channel>)";
}

TEST(LauncherRuleTest, XfcesOwnCommandsReplaceTheUsualOnes) {
    const std::string menu = R"(<property name="Super_L" type="string" value="xfce4-popup-whiskermenu"/>)";
    const std::string finder = R"(<property name="&lt;Super&gt;r" type="string" value="xfce4-appfinder"/>)";
    const std::string override = R"(<property name="override" type="bool" value="true"/>)";
    EXPECT_EQ(launcher::fromXfce(xfce("", menu)), Modifiers::command);
    EXPECT_EQ(launcher::fromXfce(xfce("", menu + override)), Modifiers::command);
    EXPECT_EQ(launcher::fromXfce(xfce(menu, "")), Modifiers::command);
    EXPECT_EQ(launcher::fromXfce(xfce(menu, finder + override)), none);
    EXPECT_EQ(launcher::fromXfce(xfce(finder, finder)), none);
    EXPECT_EQ(launcher::fromXfce(xfce(menu, "</broken>")), none);
    EXPECT_EQ(launcher::fromXfce(""), none);
}

TEST(LauncherRuleTest, LxqtNamesGroupsAfterTheirKeys) {
    EXPECT_EQ(
        launcher::fromLxqt("[Super_L.41]\nEnabled=true\npath=/panel/fancymenu/show_hide\n"),
        Modifiers::command);
    EXPECT_EQ(launcher::fromLxqt("[Super_L.41]\nEnabled=false\n"), none);
    EXPECT_EQ(launcher::fromLxqt("[Control%2BAlt%2BE.3]\nEnabled=true\n[Super%2BE.4]\n"), none);
    EXPECT_EQ(launcher::fromLxqt("broken"), none);
}

TEST(DesktopLauncherKeyTest, IsReadOffTheMainThreadAndToldWhenItChanges) {
    MadeUp settings{.settings = {{"org.gnome.mutter overlay-key", {"Super_L"}}}};
    FakeBackground background;
    DesktopLauncherKey key(background, "GNOME", settings.sources());
    int changes = 0;
    Subscription first = key.onChanged([&] { ++changes; });
    EXPECT_EQ(key.modifier(), none);
    background.runAll();
    EXPECT_EQ(key.modifier(), Modifiers::command);
    EXPECT_EQ(changes, 1);

    const Subscription second = key.onChanged([] {});
    background.runAll();
    EXPECT_EQ(changes, 1) << "nothing new";
    settings.settings.clear();
    settings.settings["org.gnome.mutter overlay-key"] = {""};
    first = key.onChanged([&] { ++changes; });
    background.runAll();
    EXPECT_EQ(key.modifier(), none);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace quillon
