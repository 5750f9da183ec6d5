#pragma once

#include "app_model_fixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace quillon {

/// The program's runs one after the other, over one data folder.
class AppModelLearningTest : public testing::Test {
  protected:
    AppModelLearningTest() {
        desktop.menus.answer(sketch.bundleID, {menuBarOf(3), ReadOutcome::complete});
        desktop.access.setTrusted(true);
        desktop.front.setCurrent(sketch);
    }
    std::unique_ptr<AppModel> modelOver(const std::filesystem::path& dataFolder) {
        AppServices services = servicesOf(desktop, panels, settings);
        services.dataFolder = dataFolder;
        return std::make_unique<AppModel>(std::move(services));
    }
    /// Started, and the first reading done.
    std::unique_ptr<AppModel> startedModel() {
        auto model = modelOver(data);
        model->start();
        desktop.background.runAll();
        return model;
    }
    /// Time passes, and what was begun in the background meanwhile is done.
    void pass(Seconds length) {
        desktop.timers.advance(length);
        desktop.background.runAll();
    }
    bool isStored() const { return std::filesystem::exists(data); }
    std::string read(const std::string& name) const {
        std::ifstream file(data / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories(data);
        std::ofstream(data / name) << text;
    }

    const RunningApp sketch = appNamed("sketch", 10);
    const RunningApp writer = appNamed("writer", 20);
    const std::string save = "File › Command a";
    QTemporaryDir folder;
    const std::filesystem::path data = std::filesystem::path(folder.path().toStdString()) / "data";
    Settings settings{folder.filePath(QStringLiteral("settings.ini"))};
    FakeDesktop desktop;
    FakePanelHost panels;
};

} // namespace quillon
