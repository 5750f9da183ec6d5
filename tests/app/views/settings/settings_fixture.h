#pragma once

#include <quillon/app/platform/fake/fake_launcher_key.h>
#include <quillon/app/platform/fake/fake_session_start.h>
#include <quillon/app/views/settings/settings_view.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>

#include <memory>

namespace quillon {

/// The settings as their user has them before them.
class SettingsViewTest : public testing::Test {
  protected:
    SettingsViewTest() { open(); }

    void open() {
        view = std::make_unique<SettingsView>(
            desk.model, desk.themes,
            SettingsView::Needs{
                desk.desktop.sessionStart, desk.desktop.launcherKey,
                QStringLiteral("~/.local/share/app.quillon.Quillon")});
        view->resize(view->sizeHint());
        view->show();
        EXPECT_TRUE(makeActive(*view));
    }

    void openTab(SettingsTab tab) { desk.model.setSettingsTab(tab); }

    /// Every line of text that can be seen, from the top.
    QStringList texts() const {
        QStringList seen;
        for (const QLabel* label : view->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty())
                seen.append(label->text());
        }
        return seen;
    }

    static QAccessibleInterface& read(QWidget& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }

    ViewDesk desk;
    std::unique_ptr<SettingsView> view;
};

} // namespace quillon
