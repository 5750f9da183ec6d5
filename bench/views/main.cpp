#include "frame_watch.h"

#include <quillon/menu/sample_menus.h>
#include <quillon/view_support/many_entries.h>
#include <quillon/view_support/view_desk.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

namespace quillon {

namespace {

using namespace Qt::StringLiterals;

constexpr int rounds = 41;
constexpr double budget = 16.0;
constexpr const char* area = "quillon::ShortcutArea";

QTextStream& out() {
    static QTextStream stream(stdout);
    return stream;
}

double milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// One line of the report; false when the median is over the budget or a frame never came.
bool report(const QString& what, std::vector<std::optional<double>> times) {
    if (std::ranges::any_of(times, [](const auto& time) { return !time; })) {
        out() << what << ": no frame" << Qt::endl;
        return false;
    }
    std::ranges::sort(times);
    const double median = *times[times.size() / 2];
    const double high = *times[times.size() * 95 / 100];
    out() << qSetFieldWidth(52) << Qt::left << what << qSetFieldWidth(0)
          << QString::asprintf("median %6.2f ms   95 %% %6.2f ms   budget %.0f ms", median, high, budget)
          << Qt::endl;
    return median <= budget;
}

/// From asking the model for the overlay to the frame on the screen.
std::optional<double> timeShow(ViewDesk& desk, FrameWatch& watch) {
    QElapsedTimer timer;
    timer.start();
    desk.model.showOverlay(Stickiness::held);
    return watch.wait(area) ? std::optional(milliseconds(timer)) : std::nullopt;
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
    desk.host.prepareOverlay(desk.model);
    const auto first = timeShow(desk, watch);
    out() << qSetFieldWidth(52) << Qt::left << QString(u"show "_s + what + u", first time")
          << qSetFieldWidth(0) << QString::asprintf("once   %6.2f ms", first.value_or(-1)) << Qt::endl;
    hide(desk);

    std::vector<std::optional<double>> same;
    std::vector<std::optional<double>> changed;
    for (int round = 0; round < rounds; ++round) {
        same.push_back(timeShow(desk, watch));
        hide(desk);
        // Another application came to the front meanwhile, and this one again.
        desk.show(emptySheet("Other"));
        desk.show(sheet);
        changed.push_back(timeShow(desk, watch));
        hide(desk);
    }
    const bool sameIsFast = report(u"show "_s + what + u", as before"_s, std::move(same));
    return report(u"show "_s + what + u", another sheet"_s, std::move(changed)) && sameIsFast;
}

QLineEdit* searchField() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (auto* field = qobject_cast<QLineEdit*>(widget); field && field->isVisible())
            return field;
    }
    return nullptr;
}

std::optional<double> timeKey(QLineEdit& field, FrameWatch& watch, int key, const QString& typed) {
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
    QApplication::sendEvent(&field, &press);
    return watch.wait(area) ? std::optional(milliseconds(timer)) : std::nullopt;
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
    std::vector<std::optional<double>> first;
    std::vector<std::optional<double>> further;
    std::vector<std::optional<double>> deleted;
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
    bool fast = report(u"type the first letter over "_s + of, std::move(first));
    fast = report(u"type further letters over "_s + of, std::move(further)) && fast;
    fast = report(u"delete letters over "_s + of, std::move(deleted)) && fast;
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
