#include "frame_times.h"
#include "frame_watch.h"

#include <quillon/kit/menu/sample_menus.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>

#include <optional>
#include <vector>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

constexpr int rounds = 41;
constexpr double budget = 8.0;
constexpr const char* area = "quillon::ShortcutArea";

bool report(const QString& what, const std::vector<MaybeFrame>& frames) {
    return reportFrames(what, frames, budget);
}

/// From asking the model for the overlay to the frame on the screen.
MaybeFrame timeShow(ViewDesk& desk, FrameWatch& watch) {
    const FrameTimer timer;
    desk.model.showOverlay(Stickiness::held);
    return watch.wait(area) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

void hide(ViewDesk& desk) {
    desk.model.closeOverlay();
    QApplication::processEvents();
    awaitServer();
}

bool benchShow(const QString& what, const AppSheet& sheet, FrameWatch& watch) {
    ViewDesk desk;
    desk.trust();
    desk.show(sheet);
    desk.model.preparePanels();
    const auto first = timeShow(desk, watch);
    // Once and with cold caches; told, but no median to be held against the budget.
    report(u"show "_s + what + u", first time"_s, {first});
    hide(desk);

    std::vector<MaybeFrame> same;
    std::vector<MaybeFrame> changed;
    for (int round = 0; round < rounds; ++round) {
        same.push_back(timeShow(desk, watch));
        hide(desk);
        // Another application came to the front meanwhile, and this one again.
        desk.show(emptySheet("Other"));
        desk.show(sheet);
        changed.push_back(timeShow(desk, watch));
        hide(desk);
    }
    const bool sameIsFast = report(u"show "_s + what + u", as before"_s, same);
    return report(u"show "_s + what + u", another sheet"_s, changed) && sameIsFast;
}

QLineEdit* searchField() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* field = qobject_cast<QLineEdit*>(widget); field && field->isVisible())
            return field;
    }
    return nullptr;
}

MaybeFrame timeKey(QLineEdit& field, FrameWatch& watch, int key, const QString& typed) {
    const FrameTimer timer;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
    QApplication::sendEvent(&field, &press);
    return watch.wait(area) ? MaybeFrame(timer.elapsed()) : std::nullopt;
}

/// Types and deletes letters over and over: the first finds nearly everything, the others fewer.
bool benchTyping(std::size_t entries, FrameWatch& watch) {
    ViewDesk desk;
    desk.trust();
    desk.show(sheetOfMany(entries));
    timeShow(desk, watch);
    QLineEdit* field = searchField();
    if (!field)
        return false;
    std::vector<MaybeFrame> first;
    std::vector<MaybeFrame> further;
    std::vector<MaybeFrame> deleted;
    const auto untilPrepared = [] {
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < 120;)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
    };
    untilPrepared();
    for (int round = 0; round < rounds; ++round) {
        first.push_back(timeKey(*field, watch, Qt::Key_E, u"e"_s));
        further.push_back(timeKey(*field, watch, Qt::Key_L, u"l"_s));
        further.push_back(timeKey(*field, watch, Qt::Key_E, u"e"_s));
        for (int i = 0; i < 3; ++i)
            deleted.push_back(timeKey(*field, watch, Qt::Key_Backspace, {}));
    }
    const QString of = QString::number(entries);
    bool fast = report(u"type the first letter over "_s + of, first);
    fast = report(u"type further letters over "_s + of, further) && fast;
    fast = report(u"delete letters over "_s + of, deleted) && fast;
    hide(desk);
    return fast;
}

int runAll() {
    FrameWatch watch;
    bool fast = benchShow(u"59 shortcuts"_s, SampleMenus::sheet(), watch);
    for (const std::size_t count : {std::size_t{300}, std::size_t{1000}})
        fast = benchShow(QString::number(count) + u" shortcuts"_s, sheetOfMany(count), watch) && fast;
    fast = benchTyping(4000, watch) && fast;
    return fast ? 0 : 1;
}

} // namespace

} // namespace quillon

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return quillon::runAll();
}
