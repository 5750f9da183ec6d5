#include "frame_times.h"
#include "frame_watch.h"

#include <quillon/app/platform/fake/fake_cheat_sheet_exports.h>
#include <quillon/app/views/library/library_view.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/read_app.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

constexpr int rounds = 21;
constexpr int apps = 200;
constexpr std::size_t commands = 2000;
constexpr double openBudget = 150;
constexpr double keyBudget = 16;
constexpr const char* list = "quillon::AppList";
constexpr const char* detail = "quillon::LibraryDetail";
const std::string largest = "org.example.app0";

void readApps(ViewDesk& desk) {
    for (int number = 0; number < apps; ++number) {
        AppSheet sheet = sheetOfMany(number == 0 ? commands : static_cast<std::size_t>(20 + number % 200));
        sheet.bundleID = "org.example.app" + std::to_string(number);
        sheet.appName = "Application " + std::to_string(number);
        readApp(desk, sheet);
    }
}

/// A Library in a window.
class Window {
  public:
    explicit Window(ViewDesk& desk)
        : m_view(desk.model, desk.themes, LibraryView::Needs{desk.icons, desk.desktop.clock, m_exports}) {
        m_view.resize(880, 580);
    }
    LibraryView& view() { return m_view; }

  private:
    FakeCheatSheetExports m_exports;
    LibraryView m_view;
};

MaybeFrame timeOpening(ViewDesk& desk, FrameWatch& watch, std::unique_ptr<Window>& window) {
    const FrameTimer timer;
    window = std::make_unique<Window>(desk);
    window->view().show();
    return watch.wait(list) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

MaybeFrame timeChoice(LibraryView& view, FrameWatch& watch, const std::string& app) {
    const FrameTimer timer;
    view.select(app);
    return watch.wait(detail) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

MaybeFrame timeKey(QLineEdit& field, FrameWatch& watch, int key, const QString& typed) {
    const FrameTimer timer;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
    QApplication::sendEvent(&field, &press);
    return watch.wait(detail) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

MaybeFrame timePin(ViewDesk& desk, FrameWatch& watch) {
    const FrameTimer timer;
    desk.model.togglePin(largest, desk.model.sheets().at(largest)->entries.front().id());
    return watch.wait(detail) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

void rest() {
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 120;)
        QApplication::processEvents(QEventLoop::AllEvents, 10);
}

bool benchAll() {
    FrameWatch watch;
    ViewDesk desk;
    readApps(desk);
    std::unique_ptr<Window> window;
    std::vector<MaybeFrame> opened;
    std::vector<MaybeFrame> chosen;
    std::vector<MaybeFrame> first;
    std::vector<MaybeFrame> further;
    std::vector<MaybeFrame> deleted;
    std::vector<MaybeFrame> pinned;
    for (int round = 0; round < rounds; ++round) {
        window.reset();
        rest();
        opened.push_back(timeOpening(desk, watch, window));
        rest();
        chosen.push_back(timeChoice(window->view(), watch, largest));
        rest();
        auto& field = *window->view().findChild<QLineEdit*>();
        first.push_back(timeKey(field, watch, Qt::Key_E, u"e"_s));
        further.push_back(timeKey(field, watch, Qt::Key_L, u"l"_s));
        further.push_back(timeKey(field, watch, Qt::Key_E, u"e"_s));
        for (int count = 0; count < 3; ++count)
            deleted.push_back(timeKey(field, watch, Qt::Key_Backspace, {}));
        pinned.push_back(timePin(desk, watch));
    }
    bool fast = reportFrames(u"open the Library with 200 applications"_s, opened, openBudget);
    fast = reportFrames(u"choose one with 2,000 shortcuts"_s, chosen, openBudget) && fast;
    fast = reportFrames(u"type the first letter over 2,000"_s, first, keyBudget) && fast;
    fast = reportFrames(u"type further letters over 2,000"_s, further, keyBudget) && fast;
    fast = reportFrames(u"delete letters over 2,000"_s, deleted, keyBudget) && fast;
    return reportFrames(u"pin one of 2,000"_s, pinned, keyBudget) && fast;
}

} // namespace

} // namespace quillon

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return quillon::benchAll() ? 0 : 1;
}
