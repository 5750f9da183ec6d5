#pragma once

#include <quillon/app/views/practice/practice_view.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/typed_answers.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include <string>
#include <vector>

namespace quillon {

inline RawMenuItem command(const char* title, const char* key) {
    RawMenuItem item;
    item.title = title;
    item.cmdChar = key;
    item.cmdModifiers = 12; // ⌃ without ⌘
    return item;
}

inline MenuReading menusWith(const std::vector<RawMenuItem>& items) {
    RawMenuItem file;
    file.title = "File";
    file.children = items;
    return {{file}, ReadOutcome::complete};
}

/// The practice window over a made-up desktop; a round asks for every command in its order.
class PracticeViewTest : public testing::Test {
  protected:
    void open() {
        defineKeys(desk.desktop.keyReading);
        view = new PracticeView(
            desk.model, desk.themes, keyboard(),
            [](const AppSheet& sheet, const UsageRecords&, const PracticeDeck::Ids&) {
                return sheet.entries;
            },
            &window);
        view->resize(480, 400);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    /// Has the application's menus read.
    void read(std::int64_t pid, const std::string& name, const MenuReading& menus) {
        const RunningApp app{pid, "org.example." + name, name, {}};
        desk.desktop.menus.answer(pid, menus);
        desk.desktop.front.setCurrent(app);
        desk.desktop.access.setTrusted(true);
        desk.model.refreshTrust();
        desk.model.frontAppChanged(app);
        desk.desktop.background.runAll();
        QApplication::processEvents();
    }
    void readWriter() { read(2, "Writer", menusWith({command("Save", "S"), command("Quit", "Q")})); }

    QStringList texts() const {
        QStringList texts;
        for (const auto* label : view->findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                texts.append(label->text());
        return texts;
    }
    /// As the mouse does.
    void showAnswer() {
        for (auto* button : view->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text() == QLatin1StringView("Show Answer"))
                QTest::mouseClick(button, Qt::LeftButton);
    }
    QStringList buttons() const {
        QStringList labels;
        for (const auto* button : view->findChildren<QAbstractButton*>())
            if (button->isVisible())
                labels.append(button->text());
        return labels;
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) { typeKey(key, held); }
    AnswerInput::Needs keyboard() {
        return {desk.desktop.keyReading, desk.desktop.keyboardGrab, desk.desktop.timers};
    }
    const QLabel* label(const QString& text) const {
        for (const auto* label : view->findChildren<QLabel*>())
            if (label->isVisible() && label->text() == text)
                return label;
        return nullptr;
    }
    QWidget& appPicker() const { return *view->findChild<QComboBox*>(); }
    UsageRecord record(const char* id) const {
        return desk.model.usage().record("org.example.Writer", id).value_or(UsageRecord());
    }

    ViewDesk desk;
    QWidget window;
    PracticeView* view = nullptr;
};

} // namespace quillon
