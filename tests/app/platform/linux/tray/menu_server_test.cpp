#include <quillon/tests/support/private_bus.h>
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/tray/menu_server.h>

#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using namespace traybus;
using testing::ElementsAre;
using Kind = TrayMenuItem::Kind;

std::vector<TrayMenuItem> someItems() {
    return {
        {.id = 3, .kind = Kind::command, .label = "Draw a_b & c", .key = {}},
        {.id = 5, .kind = Kind::line, .label = "Or hold", .key = {}},
        {.id = 7, .kind = Kind::separator, .label = "", .key = {}},
        {.id = 9, .kind = Kind::command, .label = "Settings", .key = Key::character(",")},
    };
}

TEST(MenuLineProperties, SayWhatDiffersFromAPlainCommand) {
    const auto items = someItems();
    EXPECT_EQ(menuLineProperties(items[0]), (QVariantMap{{u"label"_s, u"Draw a__b & c"_s}}));
    EXPECT_EQ(menuLineProperties(items[1]), (QVariantMap{{u"label"_s, u"Or hold"_s}, {u"enabled"_s, false}}));
    EXPECT_EQ(menuLineProperties(items[2]), (QVariantMap{{u"type"_s, u"separator"_s}}));
    EXPECT_EQ(
        menuLineProperties(items[3])[u"shortcut"_s].value<Strokes>(), (Strokes{{u"Control"_s, u"comma"_s}}));
}

/// A tray that asks for the menu and listens to it.
class ListeningTray final : public QObject {
    Q_OBJECT

  public:
    explicit ListeningTray(QDBusConnection bus, QString menu)
        : m_bus(std::move(bus)), m_menu(std::move(menu)) {
        for (const auto& [signal, slot] :
             {std::pair{u"LayoutUpdated"_s, SLOT(layoutUpdated(uint, int))},
              std::pair{u"ItemsPropertiesUpdated"_s, SLOT(propertiesUpdated(QDBusMessage))}})
            m_bus.connect(m_menu, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, signal, this, slot);
    }

    QDBusMessage ask(const QString& method, const QVariantList& arguments) {
        auto message =
            QDBusMessage::createMethodCall(m_menu, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, method);
        message.setArguments(arguments);
        const QDBusPendingCall call = m_bus.asyncCall(message);
        EXPECT_TRUE(waitFor([&] { return call.isFinished(); }));
        return call.reply();
    }

    std::vector<uint> revisions;
    std::vector<int> updated;
    QStringList removed;

  private Q_SLOTS:
    void layoutUpdated(uint revision, int) { revisions.push_back(revision); }
    void propertiesUpdated(const QDBusMessage& message) {
        for (const LineProperties& line : qdbus_cast<QList<LineProperties>>(message.arguments().at(0)))
            updated.push_back(line.id);
        for (const LineWithout& line : qdbus_cast<QList<LineWithout>>(message.arguments().at(1)))
            removed += line.names;
    }

  private:
    QDBusConnection m_bus;
    QString m_menu;
};

class MenuServerTest : public testing::Test {
  protected:
    MenuServerTest() { menu.setItems(someItems()); }

    /// Until everything that was told has arrived.
    void settle() { tray.ask(u"AboutToShow"_s, {0}); }
    QList<MenuNode> lines() {
        return qdbus_cast<MenuNode>(tray.ask(u"GetLayout"_s, {0, -1, QStringList()}).arguments().at(1))
            .children;
    }

    PrivateBus bus;
    QDBusConnection program = (registerTypes(), bus.connect());
    std::vector<int> chosen;
    MenuServer menu{program, [this](int id) { chosen.push_back(id); }};
    ListeningTray tray{bus.connect(), program.baseService()};
};

TEST_F(MenuServerTest, TheLayoutHasEveryLineInOrder) {
    std::vector<int> ids;
    for (const MenuNode& line : lines())
        ids.push_back(line.id);
    EXPECT_THAT(ids, ElementsAre(3, 5, 7, 9));
    const auto onlyLabels = tray.ask(u"GetLayout"_s, {0, 1, QStringList{u"label"_s}});
    EXPECT_TRUE(qdbus_cast<MenuNode>(onlyLabels.arguments().at(1)).children[2].properties.isEmpty());
    EXPECT_TRUE(qdbus_cast<MenuNode>(tray.ask(u"GetLayout"_s, {0, 0, QStringList()}).arguments().at(1))
                    .children.isEmpty());
}

TEST_F(MenuServerTest, ALineThatReadsDifferentlyKeepsItsPlace) {
    settle();
    tray.revisions.clear();
    tray.updated.clear();
    auto items = someItems();
    items[0].label = "Another";
    items[3].key.reset();
    menu.setItems(items);
    settle();
    EXPECT_THAT(tray.revisions, ElementsAre());
    EXPECT_THAT(tray.updated, ElementsAre(3, 9));
    EXPECT_EQ(tray.removed, QStringList{u"shortcut"_s});
    menu.setItems(items);
    settle();
    EXPECT_THAT(tray.updated, ElementsAre(3, 9)) << "nothing changed";
}

TEST_F(MenuServerTest, OtherLinesAreAnotherRevision) {
    settle();
    tray.revisions.clear();
    auto items = someItems();
    items.erase(items.begin());
    menu.setItems(items);
    menu.setItems(someItems());
    settle();
    ASSERT_EQ(tray.revisions.size(), 2U);
    EXPECT_LT(tray.revisions[0], tray.revisions[1]);
    EXPECT_EQ(tray.ask(u"GetLayout"_s, {0, -1, QStringList()}).arguments().at(0).toUInt(), tray.revisions[1]);
}

TEST_F(MenuServerTest, OnlyCommandsAreChosen) {
    const auto event = [&](int id, const QString& what) {
        return tray.ask(u"Event"_s, {id, what, QVariant::fromValue(QDBusVariant(0)), 0U}).type();
    };
    EXPECT_EQ(event(3, u"opened"_s), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(5, u"clicked"_s), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(7, u"clicked"_s), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(9, u"clicked"_s), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(4, u"clicked"_s), QDBusMessage::ErrorMessage);
    settle();
    EXPECT_THAT(chosen, ElementsAre(9));
    const QList<LineEvent> events{{3, u"clicked"_s}, {4, u"clicked"_s}};
    const auto group = tray.ask(u"EventGroup"_s, {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(group.arguments().at(0)), QList<int>{4});
    settle();
    EXPECT_THAT(chosen, ElementsAre(9, 3));
}

TEST_F(MenuServerTest, TellsEachLineOnceHoweverOftenItIsAskedFor) {
    QList<int> asked;
    for (int i = 0; i < 10'000; ++i)
        asked.append(i % 20);
    const auto answer = tray.ask(u"GetGroupProperties"_s, {QVariant::fromValue(asked), QStringList()});
    EXPECT_EQ(qdbus_cast<QList<LineProperties>>(answer.arguments().at(0)).size(), 5) << "the root too";
    const auto all = tray.ask(u"GetGroupProperties"_s, {QVariant::fromValue(QList<int>()), QStringList()});
    EXPECT_EQ(qdbus_cast<QList<LineProperties>>(all.arguments().at(0)).size(), 4);
    const auto one = tray.ask(u"GetProperty"_s, {3, u"label"_s});
    EXPECT_EQ(one.arguments().at(0).value<QDBusVariant>().variant().toString(), u"Draw a__b & c"_s);
    EXPECT_EQ(tray.ask(u"GetProperty"_s, {3, u"shortcut"_s}).type(), QDBusMessage::ErrorMessage);
    const auto about = tray.ask(u"AboutToShowGroup"_s, {QVariant::fromValue(QList<int>{0, 3, 4})});
    EXPECT_EQ(qdbus_cast<QList<int>>(about.arguments().at(1)), QList<int>{4});
}

} // namespace
} // namespace quillon

#include "menu_server_test.moc"
