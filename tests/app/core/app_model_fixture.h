#pragma once

#include <quillon/app/platform/fake/fake_panel_host.h>
#include <quillon/tests/app/core/support/model_services.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <string>

namespace quillon {

/// A menu bar with one menu, whose commands are ⌘A, ⌘B and so on.
inline std::vector<RawMenuItem> menuBarOf(int commands) {
    RawMenuItem menu{.title = "File"};
    for (int i = 0; i < commands; ++i) {
        const std::string letter(1, static_cast<char>('a' + i));
        menu.children.push_back({.title = "Command " + letter, .cmdChar = letter, .cmdModifiers = 0});
    }
    return {menu};
}

inline RunningApp appNamed(const std::string& name, std::int64_t pid) {
    return {pid, "org.example." + name, name, {{static_cast<std::uint64_t>(pid), name + " window"}}};
}

class AppModelTest : public testing::Test {
  protected:
    static constexpr std::int64_t ownPid = ownPidOfModel;

    /// Trusted, started, and the first reading of `app` done.
    void startWith(const RunningApp& app) {
        desktop.access.setTrusted(true);
        desktop.front.setCurrent(app);
        model.start();
        desktop.background.runAll();
    }
    std::size_t entriesShown() const { return model.current() ? model.current()->entries.size() : 0; }
    void answer(const RunningApp& app, int commands, ReadOutcome outcome = ReadOutcome::complete) {
        desktop.menus.answer(
            app.bundleID, {commands > 0 ? menuBarOf(commands) : std::vector<RawMenuItem>{}, outcome});
    }

    const RunningApp sketch = appNamed("sketch", 10);
    const RunningApp writer = appNamed("writer", 20);
    QTemporaryDir folder;
    Settings settings{folder.filePath(QStringLiteral("settings.ini"))};
    FakeDesktop desktop;
    FakePanelHost panels;
    AppModel model{servicesOf(desktop, panels, settings)};
};

} // namespace quillon
