#include "scenes.h"

#include <quillon/app/views/components/text.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QApplication>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The panel on the screen; null when there is none.
QWidget* shownPanel() {
    QApplication::processEvents();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && dynamic_cast<FloatingPanel*>(widget))
            return widget;
    }
    return nullptr;
}

/// Stand-in for an application's icon: a disc on a rounded square.
IconPixels madeUpIcon() {
    constexpr int size = 96;
    IconPixels icon{.width = size, .height = size, .argb = std::vector<std::uint32_t>(size * size)};
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const int dx = x - size / 2;
            const int dy = y - size / 2;
            const bool disc = dx * dx + dy * dy < 26 * 26;
            const int cornerX = std::max(0, std::abs(dx) - 26);
            const int cornerY = std::max(0, std::abs(dy) - 26);
            const bool square = cornerX * cornerX + cornerY * cornerY < 20 * 20;
            icon.argb[static_cast<std::size_t>(y * size + x)] =
                disc     ? 0xfffdf6e3
                : square ? 0xff3f7cac + static_cast<std::uint32_t>(y / 3)
                         : 0;
        }
    }
    return icon;
}

void sample(ViewDesk& desk) {
    desk.trust();
    desk.desktop.icons.set("com.example.sketchpad", madeUpIcon());
    desk.showSample();
}

void longTexts(ViewDesk& desk) {
    desk.trust();
    AppSheet sheet = sheetOfLongTitles();
    const std::string id = sheet.entries[0].id();
    const std::string saveID = sheet.entries[1].id();
    const std::string findID = sheet.entries[5].id();
    UsageRecords usage;
    usage[id].clicked = 12'345;
    usage[saveID].clicked = 3;
    Annotations said;
    said[id] = {
        .pinned = true,
        .note = "Nimmt die Vorlage, die zuletzt in diesem Ordner benutzt wurde, und fragt "
                "vorher nach dem Namen des neuen Dokuments",
        .muted = false};
    said[saveID] = {.pinned = true, .note = "", .muted = false};
    said[findID] = {.pinned = false, .note = "kurz", .muted = false};
    desk.model.showSample(std::move(sheet), std::move(usage), std::move(said));
}

using Prepare = std::function<void(ViewDesk&)>;

Scene overlay(QString name, Prepare prepare, Stickiness stickiness, QString query = {}) {
    auto show = [prepare = std::move(prepare), stickiness, query = std::move(query)](ViewDesk& desk) {
        prepare(desk);
        desk.model.showOverlay(stickiness);
        desk.model.setQuery(utf8(query));
        QWidget* const panel = shownPanel();
        if (stickiness == Stickiness::sticky)
            makeActive(*panel);
        return panel;
    };
    return {std::move(name), std::move(show)};
}

Scene toast(QString name, std::string title, Shortcut shortcut) {
    auto show = [entry = MenuEntry{{"File", std::move(title)}, std::move(shortcut), true}](ViewDesk& desk) {
        desk.clickInMenu(entry);
        return shownPanel();
    };
    return {std::move(name), std::move(show)};
}

} // namespace

std::vector<Scene> overlayScenes() {
    const auto nothing = [](ViewDesk&) {};
    const auto trusted = [](ViewDesk& desk) { desk.trust(); };
    const auto reading = [](ViewDesk& desk) {
        desk.trust();
        desk.beginReading("Sketchpad");
    };
    const auto none = [](ViewDesk& desk) {
        desk.trust();
        desk.show(emptySheet("Terminal"));
    };
    const auto many = [](ViewDesk& desk) {
        desk.trust();
        desk.show(sheetOfMany(300));
    };
    return {
        overlay(u"overlay-sample"_s, sample, Stickiness::held),
        overlay(u"overlay-sample-kept"_s, sample, Stickiness::sticky),
        overlay(u"overlay-query"_s, sample, Stickiness::sticky, u"shift cmd g"_s),
        overlay(u"overlay-query-words"_s, sample, Stickiness::sticky, u"copy"_s),
        overlay(u"overlay-no-match"_s, sample, Stickiness::sticky, u"xyz"_s),
        overlay(u"overlay-300"_s, many, Stickiness::held),
        overlay(u"overlay-long-texts"_s, longTexts, Stickiness::sticky),
        overlay(u"overlay-needs-accessibility"_s, nothing, Stickiness::sticky),
        overlay(u"overlay-no-app"_s, trusted, Stickiness::held),
        overlay(u"overlay-reading"_s, reading, Stickiness::held),
        overlay(u"overlay-no-shortcuts"_s, none, Stickiness::held),
    };
}

std::vector<Scene> toastScenes() {
    const auto control = Modifiers::control;
    const auto shift = Modifiers::shift;
    const auto option = Modifiers::option;
    const auto all = Modifiers{control, option, shift, Modifiers::command};
    return {
        toast(u"toast-1"_s, "Save", {control, Key::character("S")}),
        toast(u"toast-2"_s, "Save As…", {{control, shift}, Key::character("S")}),
        toast(u"toast-3"_s, "Go to Symbol", {{control, option, shift}, Key::character("O")}),
        toast(u"toast-4"_s, "Bring to Front", {all, Key::character("]")}),
        toast(u"toast-none"_s, "Full Screen", {{}, Key::special(SpecialKey::f11)}),
        toast(u"toast-wide"_s, "Emoji and Symbols", {all, Key::special(SpecialKey::space)}),
        toast(
            u"toast-long"_s, "Neues Dokument aus Vorlage erstellen und im gleichen Fenster öffnen…",
            {{control, shift}, Key::character("N")}),
        toast(
            u"toast-long-wide"_s, "Reload Without Reading the Cache", {all, Key::special(SpecialKey::space)}),
        toast(u"toast-right-to-left"_s, "שמירה בשם…", {{control, shift}, Key::character("S")}),
        toast(
            u"toast-right-to-left-long"_s, "העתקת העיצוב של הטקסט המסומן אל כל הפסקאות הבאות במסמך",
            {control, Key::character("C")}),
        toast(
            u"toast-emoji"_s, "👩‍👩‍👧‍👦 Familie einfügen 🇩🇪",
            {control, Key::character("J")}),
    };
}

} // namespace quillon
