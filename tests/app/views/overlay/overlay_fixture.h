#pragma once

#include <quillon/app/views/overlay/overlay_view.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace quillon {

/// The overlay's view as its user has it before them.
class OverlayTest : public testing::Test {
  protected:
    OverlayTest() { open(OverlayView::Mode::live); }

    void open(OverlayView::Mode mode) {
        view = std::make_unique<OverlayView>(desk.model, desk.themes, desk.icons, mode);
        view->resize(1180, 760);
        view->show();
        EXPECT_TRUE(makeActive(*view));
    }

    /// Every line of text and label of a button that can be seen, from the top.
    QStringList texts() const {
        QStringList seen;
        for (const QLabel* label : view->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty())
                seen.append(label->text());
        }
        for (const QPushButton* button : view->findChildren<QPushButton*>()) {
            if (button->isVisible())
                seen.append(button->text());
        }
        return seen;
    }

    QAccessibleInterface* list() const { return QAccessible::queryAccessibleInterface(&view->area()); }

    /// What is read of the shown cards, in order; headings begin with "# ".
    QStringList cards() const {
        QStringList read;
        for (int i = 0; view->area().isVisible() && i < list()->childCount(); ++i) {
            const QAccessibleInterface* item = list()->child(i);
            const QString mark = item->role() == QAccessible::Heading ? QStringLiteral("# ") : QString();
            read.append(mark + item->text(QAccessible::Name));
        }
        return read;
    }

    QLineEdit& field() const { return *view->findChild<QLineEdit*>(); }
    void type(const QString& text) { QTest::keyClicks(&field(), text); }

    /// The position of a row by the beginning of what is read of it.
    std::size_t row(const QString& beginning) const {
        for (std::size_t i = 0; i < view->area().layout().rows.size(); ++i) {
            if (view->area().spokenRow(i).startsWith(beginning))
                return i;
        }
        ADD_FAILURE() << "no row " << beginning.toStdString();
        return 0;
    }
    QPoint middleOf(std::size_t rowPosition) const {
        return view->area().visualRect(view->area().layout().rows[rowPosition].rect).center();
    }
    /// The open menu of a row; null when there is none.
    QMenu* rowMenu() const {
        for (QMenu* menu : view->findChildren<QMenu*>()) {
            if (menu->isVisible())
                return menu;
        }
        return nullptr;
    }
    QStringList menuItems() const {
        QStringList items;
        if (const QMenu* menu = rowMenu()) {
            for (const QAction* action : menu->actions())
                items.append(action->text());
        }
        return items;
    }
    void choose(const QString& item) {
        QMenu* menu = rowMenu();
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text() == item) {
                action->trigger();
                menu->close();
                return;
            }
        }
        FAIL() << "the menu has no " << item.toStdString();
    }

    ViewDesk desk;
    std::unique_ptr<OverlayView> view;
};

} // namespace quillon
