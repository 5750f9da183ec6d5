#include "overlay_fixture.h"

#include <quillon/kit/menu/sample_menus.h>

#include <QHelpEvent>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class OverlayPointerTest : public OverlayTest {
  protected:
    OverlayPointerTest() {
        desk.trust();
        desk.showSample();
    }
    QWidget* rows() const { return view->area().viewport(); }
    void rightClick(std::size_t position) {
        const QPoint at = middleOf(position);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, rows()->mapToGlobal(at));
        QApplication::sendEvent(rows(), &event);
    }
};

TEST_F(OverlayPointerTest, ATapAnywhereKeepsTheOverlayAndFocusesTheSearch) {
    const std::vector<QWidget*> places{view.get(), rows(), &field(), view->findChild<QLabel*>()};
    for (QWidget* place : places) {
        desk.model.closeOverlay();
        view->area().setFocus();
        ASSERT_FALSE(desk.model.overlaySticky());
        QTest::mouseClick(place, Qt::LeftButton, {}, place->rect().center());
        EXPECT_TRUE(desk.model.overlaySticky()) << place->metaObject()->className();
        EXPECT_TRUE(view->search().isFocused()) << place->metaObject()->className();
    }
}

TEST_F(OverlayPointerTest, OnceKeptATapChangesNothing) {
    desk.model.keepOverlayOpen();
    type(u"a"_s);
    int changes = 0;
    const Subscription subscription = desk.model.changed.subscribe([&](ModelField) { ++changes; });
    QTest::mouseClick(rows(), Qt::LeftButton, {}, middleOf(row(u"Save"_s)));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(view->search().isFocused()) << "the search keeps the keyboard";
    EXPECT_EQ(view->area().currentRow(), std::nullopt);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(desk.model.query(), "");
}

TEST_F(OverlayPointerTest, AShowcaseIsNotKept) {
    open(OverlayView::Mode::showcase);
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, QPoint(5, 400));
    EXPECT_FALSE(desk.model.overlaySticky());
}

TEST_F(OverlayPointerTest, ARowsMenuPinsAndUnpins) {
    rightClick(row(u"Save"_s));
    EXPECT_THAT(menuItems(), ElementsAre(u"Pin"_s, u"Open in Library"_s));
    choose(u"Pin"_s);
    EXPECT_TRUE(desk.model.annotations().get(SampleMenus::bundleID, "File › Save").pinned);
    EXPECT_TRUE(cards().mid(1, 4).contains(u"Save, Pinned, ⌘S"_s));

    rightClick(row(u"Save"_s));
    EXPECT_THAT(menuItems(), ElementsAre(u"Unpin"_s, u"Open in Library"_s));
    choose(u"Unpin"_s);
    EXPECT_FALSE(desk.model.annotations().get(SampleMenus::bundleID, "File › Save").pinned);
}

TEST_F(OverlayPointerTest, APinMadeWhileScrolledKeepsTheRowUnderThePointer) {
    desk.show(sheetOfMany(300));
    view->area().scrollByPage(1);
    ASSERT_GT(view->area().verticalScrollBar()->value(), 0);
    const auto& rows = view->area().layout().rows;
    const auto seen = std::ranges::find_if(
        rows, [&](const RowBox& box) { return view->area().visualRect(box.rect).top() > 200; });
    const auto position = static_cast<std::size_t>(seen - rows.begin());
    const QString title = view->area().spokenRow(position).section(u',', 0, 0);
    const QPoint pointer = middleOf(position);
    for (const QString& item : {u"Pin"_s, u"Unpin"_s}) {
        rightClick(*view->area().rowAt(pointer));
        choose(item);
        const auto under = view->area().rowAt(pointer);
        ASSERT_TRUE(under.has_value());
        EXPECT_EQ(view->area().spokenRow(*under).section(u',', 0, 0), title) << item.toStdString();
    }
}

TEST_F(OverlayPointerTest, APinMadeAtTheTopShowsThePinnedCard) {
    desk.show(sheetOfMany(300));
    rightClick(3);
    choose(u"Pin"_s);
    EXPECT_EQ(view->area().verticalScrollBar()->value(), 0);
}

TEST_F(OverlayPointerTest, ATitleOfACardThatIsShortenedIsToldInFull) {
    AppSheet sheet = sheetOfMany(10);
    const std::string title = "Cut & Paste " + std::string(200, 'W');
    for (MenuEntry& entry : sheet.entries)
        entry.path.front() = title;
    desk.show(sheet);
    const HeadingBox& heading = view->area().layout().headings.front();
    const QPoint at = view->area().visualRect(heading.rect).center();
    QHelpEvent help(QEvent::ToolTip, at, rows()->mapToGlobal(at));
    QApplication::sendEvent(rows(), &help);
    // Rich text only where it says so itself: otherwise its markup would be shown.
    EXPECT_TRUE(Qt::mightBeRichText(QToolTip::text())) << QToolTip::text().toStdString();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), QString::fromStdString(title));
    QToolTip::hideText();
}

TEST_F(OverlayPointerTest, ARowsMenuOpensTheLibrary) {
    rightClick(row(u"Save"_s));
    choose(u"Open in Library"_s);
    EXPECT_THAT(desk.desktop.windows.opened(), ElementsAre(WindowName::library));
}

TEST_F(OverlayPointerTest, TheMenuOfAHeldOverlayKeepsItOpen) {
    ASSERT_FALSE(desk.model.overlaySticky());
    rightClick(row(u"Save"_s));
    EXPECT_TRUE(desk.model.overlaySticky());
    EXPECT_NE(rowMenu(), nullptr);
}

TEST_F(OverlayPointerTest, TheMenuGoesWithTheOverlay) {
    rightClick(row(u"Save"_s));
    ASSERT_NE(rowMenu(), nullptr);
    view->hide();
    EXPECT_EQ(rowMenu(), nullptr);
}

TEST_F(OverlayPointerTest, AMenuThatIsStillOpenPinsInTheApplicationThatItWasOpenedFor) {
    rightClick(row(u"Save"_s));
    desk.show(sheetOfMany(100));
    choose(u"Pin"_s);
    EXPECT_TRUE(desk.model.annotations().get(SampleMenus::bundleID, "File › Save").pinned);
    EXPECT_FALSE(desk.model.annotations().get("org.example.Atelier", "File › Save").pinned);
}

TEST_F(OverlayPointerTest, TheMenuOfTheSearchKeepsAHeldOverlayOpenAndGoesWithIt) {
    const QPoint at = field().rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, field().mapToGlobal(at));
    QApplication::sendEvent(&field(), &event);
    EXPECT_TRUE(desk.model.overlaySticky());
    ASSERT_NE(rowMenu(), nullptr);
    EXPECT_FALSE(rowMenu()->styleSheet().isEmpty()) << "looks like the rows' menus";
    view->hide();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(OverlayPointerTest, BetweenTheRowsThereIsNoMenu) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), rows()->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(rows(), &event);
    EXPECT_EQ(rowMenu(), nullptr);
}

TEST_F(OverlayPointerTest, TheRowUnderThePointerLightsUp) {
    const std::size_t position = row(u"Redo"_s);
    const QPoint corner = view->area().visualRect(view->area().layout().rows[position].rect).center();
    const auto colour = [&] {
        QImage image(rows()->size(), QImage::Format_ARGB32_Premultiplied);
        rows()->render(&image);
        return image.pixelColor(corner);
    };
    const QColor before = colour();
    QTest::mouseMove(rows(), middleOf(position));
    QMouseEvent move(
        QEvent::MouseMove, middleOf(position), rows()->mapToGlobal(middleOf(position)), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(rows(), &move);
    EXPECT_NE(colour(), before);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(rows(), &leave);
    EXPECT_EQ(colour(), before);
}

TEST_F(OverlayPointerTest, NothingIsDrawnOutsideOfTheCards) {
    desk.show(sheetOfLongTitles());
    for (const double points : {7.0, 11.0, 24.0}) {
        desk.desktop.appearance.set({ColourScheme::light, "DejaVu Sans", points});
        QImage image(rows()->size(), QImage::Format_ARGB32_Premultiplied);
        view->area().scrollToTop();
        view->render(&image, {}, QRegion(QRect(rows()->mapTo(view.get(), QPoint(0, 0)), rows()->size())));
        const QColor ground = desk.themes.theme().palette.window;
        for (int y = 0; y < image.height() - 20; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool inCard =
                    std::ranges::any_of(view->area().layout().cards, [&](const CardBox& card) {
                        return card.rect.adjusted(-0.5, -0.5, 0.5, 0.5).contains(x + 0.5, y + 0.5);
                    });
                if (!inCard) {
                    ASSERT_EQ(image.pixelColor(x, y), ground) << points << " points, " << x << ", " << y;
                }
            }
        }
    }
}

} // namespace
} // namespace quillon
