// Prints what is noticed of the use of menus on this desktop, one JSON object a line, until it is ended.

#include <quillon/app/platform/linux/desktop/linux_platform.h>
#include <quillon/app/platform/qt/system_clock.h>
#include <quillon/app/platform/qt/thread_background.h>

#include <nlohmann/json.hpp>

#include <QApplication>

#include <iostream>

namespace {

using namespace quillon;
using nlohmann::json;

json asJson(const menu_use::Opened& opened) {
    return {{"what", "opened"}, {"app", opened.app.bundleID}, {"pid", opened.app.pid}};
}

json asJson(const menu_use::Pointed& pointed) {
    return {{"what", "pointed"}, {"item", pointed.item}};
}

json asJson(const menu_use::Told& told) {
    const MenuItemFacts& facts = told.facts;
    json result{
        {"what", "told"},
        {"item", told.item},
        {"path", facts.path},
        {"enabled", facts.enabled},
        {"keys", facts.shortcut ? json(facts.shortcut->display()) : json()}};
    if (facts.frame)
        result["frame"] = {facts.frame->x, facts.frame->y, facts.frame->width, facts.frame->height};
    return result;
}

json asJson(const menu_use::Released& released) {
    return {{"what", "released"}, {"at", {released.at.x, released.at.y}}};
}

json asJson(const menu_use::Closed&) {
    return {{"what", "closed"}};
}

} // namespace

int main(int argc, char** argv) {
    LinuxPlatform platform;
    platform.prepareDisplay();
    const QApplication application(argc, argv);
    const SystemClock clock;
    ThreadBackground background;
    const auto desktop = platform.openDesktop(background, clock);
    const Subscription evidence = desktop->menuUse().onEvidence([](const MenuEvidence& one) {
        std::cout << std::visit([](const auto& each) { return asJson(each); }, one).dump() << std::endl;
    });
    std::cout << R"({"what": "watching"})" << std::endl;
    return QApplication::exec();
}
