#include <quillon/app/platform/fake/fake_foreground.h>
#include <quillon/app/views/windows/titled_windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QTest>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class TitledWindowsTest : public testing::Test {
  protected:
    WindowContent content(EscapeKey escape = EscapeKey::closes) {
        return {
            .make =
                [this] {
                    ++made;
                    auto view = std::make_unique<QLineEdit>();
                    lastView = view.get();
                    return view;
                },
            .size = {420, 300},
            .escape = escape};
    }
    /// Does what is left to be done once the caller's work is finished.
    static void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
    QWidget& window(WindowName name = WindowName::welcome) const { return *windows.window(name); }

    FakeForeground foreground;
    TitledWindows windows{foreground};
    int made = 0;
    QPointer<QWidget> lastView;
    Subscription welcome = windows.offer(WindowName::welcome, content());
};

TEST_F(TitledWindowsTest, OffersWhatItHasAContentFor) {
    EXPECT_TRUE(windows.offers(WindowName::welcome));
    EXPECT_FALSE(windows.offers(WindowName::library));
    windows.open(WindowName::library);
    EXPECT_EQ(windows.window(WindowName::library), nullptr);
    welcome.reset();
    EXPECT_FALSE(windows.offers(WindowName::welcome));
}

TEST_F(TitledWindowsTest, EveryWindowHasItsIdentifierAndItsTitle) {
    const std::vector<std::pair<QString, QString>> expected{
        {u"welcome"_s, u"Welcome to Quillon"_s},
        {u"library"_s, u"Quillon Library"_s},
        {u"practice"_s, u"Practice"_s},
        {u"settings"_s, u"Quillon Settings"_s}};
    std::vector<Subscription> offers;
    std::vector<std::pair<QString, QString>> read;
    for (const WindowName name : allWindowNames) {
        offers.push_back(windows.offer(name, content()));
        windows.open(name);
        read.emplace_back(window(name).objectName(), window(name).windowTitle());
        EXPECT_EQ(windowOfIdentifier(identifier(name)), name);
    }
    EXPECT_EQ(read, expected);
    EXPECT_FALSE(windowOfIdentifier("overlay"));
}

TEST_F(TitledWindowsTest, IsMadeWhenItIsAskedForInItsSizeAndInFront) {
    EXPECT_EQ(made, 0);
    windows.open(WindowName::welcome);
    EXPECT_EQ(made, 1);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().size(), QSize(420, 300));
    EXPECT_FALSE(window().windowIcon().isNull());
    EXPECT_THAT(foreground.brought, ElementsAre(window().winId()));
    QApplication::processEvents();
    EXPECT_TRUE(windows.hasKeyboard(WindowName::welcome));
    EXPECT_FALSE(windows.hasKeyboard(WindowName::practice));
}

TEST_F(TitledWindowsTest, ThereIsOneOfEachWhichComesToTheFrontAgain) {
    windows.open(WindowName::welcome);
    QWidget* const first = &window();
    QWidget other;
    other.show();
    other.activateWindow();
    QApplication::processEvents();
    EXPECT_FALSE(windows.hasKeyboard(WindowName::welcome));
    windows.open(WindowName::welcome);
    QApplication::processEvents();
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(made, 1);
    EXPECT_TRUE(windows.hasKeyboard(WindowName::welcome));
    EXPECT_EQ(foreground.brought.size(), 2u);
}

TEST_F(TitledWindowsTest, AMinimisedWindowComesBack) {
    windows.open(WindowName::welcome);
    window().showMinimized();
    windows.open(WindowName::welcome);
    EXPECT_FALSE(window().isMinimized());
    EXPECT_EQ(made, 1);
}

TEST_F(TitledWindowsTest, ClosingItReleasesIt) {
    for (int times = 1; times <= 3; ++times) {
        windows.open(WindowName::welcome);
        const QPointer<QWidget> view = lastView;
        window().close();
        settle();
        EXPECT_EQ(windows.window(WindowName::welcome), nullptr);
        EXPECT_FALSE(view);
        EXPECT_EQ(made, times);
    }
}

TEST_F(TitledWindowsTest, OneThatIsClosingIsMadeAnewWhenItIsAskedForAtOnce) {
    windows.open(WindowName::welcome);
    window().close();
    windows.open(WindowName::welcome);
    settle();
    ASSERT_NE(windows.window(WindowName::welcome), nullptr);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(made, 2);
}

TEST_F(TitledWindowsTest, AnOfferThatEndsTakesItsWindowAlong) {
    windows.open(WindowName::welcome);
    welcome.reset();
    EXPECT_FALSE(lastView);
    EXPECT_EQ(windows.window(WindowName::welcome), nullptr);
}

TEST_F(TitledWindowsTest, ControlWAndEscapeCloseIt) {
    windows.open(WindowName::welcome);
    QApplication::processEvents();
    QTest::keySequence(&window(), QKeySequence(QKeySequence::Close));
    settle();
    EXPECT_FALSE(lastView);
    windows.open(WindowName::welcome);
    QTest::keyClick(lastView.data(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(lastView);
}

TEST_F(TitledWindowsTest, EscapeDoesNothingWhereItIsNotMeantTo) {
    const Subscription practice = windows.offer(WindowName::practice, content(EscapeKey::doesNothing));
    windows.open(WindowName::practice);
    QTest::keyClick(lastView.data(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(lastView);
}

TEST_F(TitledWindowsTest, IsNeverLargerThanTheScreen) {
    WindowContent huge = content();
    huge.size = {9000, 9000};
    const Subscription settings = windows.offer(WindowName::settings, huge);
    windows.open(WindowName::settings);
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    EXPECT_LT(window(WindowName::settings).width(), room.width());
    EXPECT_LT(window(WindowName::settings).height(), room.height());
}

TEST_F(TitledWindowsTest, IsLargerWhereItsViewNeedsMore) {
    WindowContent small = content();
    small.make = [] {
        auto view = std::make_unique<QWidget>();
        view->setMinimumSize(500, 350);
        return view;
    };
    const Subscription settings = windows.offer(WindowName::settings, small);
    windows.open(WindowName::settings);
    EXPECT_EQ(window(WindowName::settings).size(), QSize(500, 350));
}

} // namespace
} // namespace quillon
