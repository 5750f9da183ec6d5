#include "scenes.h"

#include <quillon/app/views/components/text.h>
#include <quillon/app/views/practice/practice_view.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/shortcut/key_code.h>
#include <quillon/tests/app/views/support/typed_answers.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <string>
#include <utility>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A key press while a round is drawn.
struct Press {
    Qt::Key key;
    Qt::KeyboardModifiers held = Qt::NoModifier;
};

constexpr Press onButton{Qt::Key_Return};
constexpr Press toButton{Qt::Key_Tab};
constexpr Press wrongKeys{Qt::Key_X, Qt::ControlModifier | Qt::AltModifier};

RawMenuItem command(const char* title, const char* key) {
    RawMenuItem item;
    item.title = title;
    item.cmdChar = key;
    item.cmdModifiers = 12; // ⌃ without ⌘
    return item;
}

RawMenuItem menu(const char* title, std::vector<RawMenuItem> items) {
    RawMenuItem item;
    item.title = title;
    item.children = std::move(items);
    return item;
}

MenuReading menusOfWriter() {
    RawMenuItem edit = menu(
        "Edit", {command("Find and Replace in the Whole Document…", "H"),
                 menu("Paste Special", {command("As Text Without Formatting", "V")}), command("Undo", "Z")});
    return {{menu("File", {command("Save", "S")}), std::move(edit)}, ReadOutcome::complete};
}

/// A command with more words than a card has room for, deep in menus with long names.
MenuReading menusWithLongTexts() {
    std::string title = "Replace";
    while (title.size() < 300)
        title += " every occurrence of the selected words";
    RawMenuItem path = menu("Paragraphs and Everything That Belongs to Them", {command(title.c_str(), "J")});
    for (const char* name : {"Changes to the Whole Document at Once", "Find and Replace in All Documents"})
        path = menu(name, {std::move(path)});
    return {{std::move(path)}, ReadOutcome::complete};
}

void read(ViewDesk& desk, std::int64_t pid, const std::string& name, MenuReading menus) {
    const RunningApp app{pid, "org.example." + name, name, {}};
    desk.desktop.menus.answer(pid, std::move(menus));
    desk.desktop.front.setCurrent(app);
    desk.desktop.access.setTrusted(true);
    desk.model.refreshTrust();
    desk.model.frontAppChanged(app);
    desk.desktop.background.runAll();
}

/// `prints` has two characters for each key with characters, in the order of an ANSI keyboard's rows, and
/// then those of the key that only an ISO keyboard has.
void printKeys(FakeKeyReading& reading, KeyboardShape shape, const QString& prints) {
    constexpr std::string_view places = "`1234567890-=QWERTYUIOP[]\\ASDFGHJKL;'ZXCVBNM,./";
    PrintedKeys keys{.shape = shape};
    for (qsizetype i = 0; 2 * i < prints.size(); ++i) {
        const auto place = static_cast<std::size_t>(i) < places.size()
                               ? KeyCodes::ofCharacter(places.substr(static_cast<std::size_t>(i), 1))
                               : KeyCodes::isoSection;
        keys.keys[place.value_or(KeyCodes::isoSection)] = {
            .plain = utf8(prints.sliced(2 * i, 1)), .shifted = utf8(prints.sliced(2 * i + 1, 1))};
    }
    reading.print(keys);
}

/// With these applications, and what their user pressed so far.
PracticeView& practised(
    ViewDesk& desk, const std::vector<std::string>& apps, const std::vector<Press>& presses,
    const MenuReading& menus = menusOfWriter()) {
    std::int64_t pid = 2;
    for (const std::string& app : apps)
        read(desk, pid++, app, menus);
    defineKeys(desk.desktop.keyReading);
    if (!desk.desktop.keyReading.printed())
        printKeys(
            desk.desktop.keyReading, KeyboardShape::ansi,
            u"`~1!2@3#4$5%6^7&8*9(0)-_=+qQwWeErRtTyYuUiIoOpP[{]}\\|aAsSdDfFgGhHjJkKlL;:'\"zZxXcCvVbBnNmM,<.>/?"_s);
    PracticeView& view = keep(
        desk, std::make_unique<PracticeView>(
                  desk.model, desk.themes,
                  AnswerInput::Needs{desk.desktop.keyReading, desk.desktop.keyboardGrab, desk.desktop.timers},
                  [](const AppSheet& sheet, const UsageRecords&, const PracticeDeck::Ids&) {
                      return sheet.entries;
                  }));
    view.resize(QSize(560, 580).expandedTo(view.sizeHint()));
    view.show();
    makeActive(view);
    QApplication::processEvents();
    for (const Press& press : presses)
        typeKey(press.key, press.held);
    return view;
}

Scene practice(QString name, std::vector<std::string> apps, std::vector<Press> presses = {}) {
    auto show = [apps = std::move(apps), presses = std::move(presses)](ViewDesk& desk) {
        return &practised(desk, apps, presses);
    };
    return {std::move(name), std::move(show)};
}

/// Where the round asks for ⌃Z.
Scene germanKeyboard(QString name, std::vector<std::string> apps) {
    auto show = [apps = std::move(apps)](ViewDesk& desk) {
        printKeys(
            desk.desktop.keyReading, KeyboardShape::iso,
            u"^°1!2\"3§4$5%6&7/8(9)0=ß?´`qQwWeErRtTzZuUiIoOpPüÜ+*#'aAsSdDfFgGhHjJkKlLöÖäÄyYxXcCvVbBnNmM,;.:-_<>"_s);
        return &practised(
            desk, apps, {onButton, wrongKeys, onButton, wrongKeys, onButton, wrongKeys, onButton, wrongKeys});
    };
    return {std::move(name), std::move(show)};
}

Scene longCommand(QString name, std::vector<Press> presses) {
    auto show = [presses = std::move(presses)](ViewDesk& desk) {
        return &practised(desk, {"Writer"}, presses, menusWithLongTexts());
    };
    return {std::move(name), std::move(show)};
}

Scene letGo(QString name, std::vector<std::string> apps) {
    auto show = [apps = std::move(apps)](ViewDesk& desk) {
        PracticeView& view = practised(desk, apps, {onButton});
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &escape);
        desk.desktop.timers.advance(Seconds(1.1));
        return &view;
    };
    return {std::move(name), std::move(show)};
}

Scene choices(QString name, std::vector<std::string> apps) {
    auto show = [apps = std::move(apps)](ViewDesk& desk) {
        auto* const box = practised(desk, apps, {}).findChild<QComboBox*>();
        box->showPopup();
        return box->view()->window();
    };
    return {std::move(name), std::move(show)};
}

} // namespace

std::vector<Scene> practiceScenes() {
    const std::vector<std::string> apps{"Sketchpad", "Calculator", "Writer"};
    const Press save{Qt::Key_S, Qt::ControlModifier};
    const Press find{Qt::Key_H, Qt::ControlModifier};
    const Press paste{Qt::Key_V, Qt::ControlModifier};
    const Press undo{Qt::Key_Z, Qt::ControlModifier};
    return {
        practice(u"practice-empty"_s, {}),
        practice(u"practice-start"_s, apps),
        practice(u"practice-question"_s, apps, {onButton, save, onButton}),
        practice(u"practice-right"_s, apps, {onButton, save, onButton, find}),
        practice(u"practice-wrong"_s, apps, {onButton, save, onButton, find, onButton, wrongKeys}),
        practice(u"practice-revealed"_s, apps, {onButton, toButton, onButton}),
        germanKeyboard(u"practice-german-keyboard"_s, apps),
        letGo(u"practice-let-go"_s, apps),
        practice(
            u"practice-missed"_s, apps,
            {onButton, save, onButton, wrongKeys, onButton, wrongKeys, onButton, undo, onButton}),
        practice(
            u"practice-clean"_s, apps,
            {onButton, save, onButton, find, onButton, paste, onButton, undo, onButton}),
        practice(u"practice-long-name"_s, {"The Application With a Rather Long Name for Its Menu"}),
        longCommand(u"practice-long-command"_s, {onButton}),
        longCommand(u"practice-long-command-wrong"_s, {onButton, wrongKeys}),
        longCommand(u"practice-long-command-missed"_s, {onButton, wrongKeys, onButton}),
        choices(u"practice-choices"_s, apps),
    };
}

} // namespace quillon
