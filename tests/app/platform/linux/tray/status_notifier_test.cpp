#include <quillon/tests/support/private_bus.h>
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/tray/status_notifier.h>

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <memory>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const QString watcherPath = u"/StatusNotifierWatcher"_s;
const QString watcherName = u"org.kde.StatusNotifierWatcher"_s;

class FakeWatcher final : public QDBusVirtualObject {
  public:
    FakeWatcher(QDBusConnection bus, bool withHost) : hasHost(withHost), m_bus(std::move(bus)) {
        m_bus.registerVirtualObject(watcherPath, this);
        m_bus.registerService(watcherName);
    }
    ~FakeWatcher() override {
        m_bus.unregisterObject(watcherPath);
        m_bus.unregisterService(watcherName);
    }

    void tell(const QString& signal, const QVariantList& arguments = {}) {
        auto message = QDBusMessage::createSignal(watcherPath, watcherName, signal);
        message.setArguments(arguments);
        m_bus.send(message);
    }
    void setHost(bool withHost) {
        hasHost = withHost;
        tell(withHost ? u"StatusNotifierHostRegistered"_s : u"StatusNotifierHostUnregistered"_s);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() == u"RegisterStatusNotifierItem"_s) {
            items.append(message.arguments().value(0).toString());
            return connection.send(message.createReply());
        }
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost))));
    }

    bool hasHost;
    QStringList items;

  private:
    QDBusConnection m_bus;
};

class StatusNotifierTest : public testing::Test {
  protected:
    bool waitShown(const StatusNotifier& notifier, bool shown) {
        return waitFor([&] { return notifier.isSettled() && notifier.isShown() == shown; });
    }

    PrivateBus bus;
    QDBusConnection tray = bus.connect();
    QDBusConnection program = bus.connect();
};

TEST_F(StatusNotifierTest, RegistersWithTheWatcherThatIsThere) {
    FakeWatcher watcher(tray, true);
    const StatusNotifier notifier(program);
    EXPECT_FALSE(notifier.isSettled());
    EXPECT_TRUE(waitShown(notifier, true));
    EXPECT_EQ(watcher.items, QStringList{program.baseService()});
}

TEST_F(StatusNotifierTest, RegistersWithWatchersThatComeLaterAndAgain) {
    const StatusNotifier notifier(program);
    EXPECT_TRUE(waitShown(notifier, false));
    for (int round = 0; round < 3; ++round) {
        {
            FakeWatcher watcher(tray, true);
            EXPECT_TRUE(waitShown(notifier, true));
            EXPECT_EQ(watcher.items.size(), 1);
        }
        EXPECT_TRUE(waitShown(notifier, false));
    }
}

TEST_F(StatusNotifierTest, FollowsTheHost) {
    FakeWatcher watcher(tray, false);
    const StatusNotifier notifier(program);
    EXPECT_TRUE(waitShown(notifier, false));
    watcher.setHost(true);
    EXPECT_TRUE(waitShown(notifier, true));
    watcher.setHost(false);
    EXPECT_TRUE(waitShown(notifier, false));
}

TEST_F(StatusNotifierTest, AnItemThatIsLetGoOfIsNotShown) {
    FakeWatcher watcher(tray, true);
    const StatusNotifier notifier(program);
    EXPECT_TRUE(waitShown(notifier, true));
    watcher.tell(u"StatusNotifierItemUnregistered"_s, QVariantList{u":9.99/StatusNotifierItem"_s});
    watcher.tell(
        u"StatusNotifierItemUnregistered"_s,
        QVariantList{QString(program.baseService() + u"/StatusNotifierItem"_s)});
    EXPECT_TRUE(waitShown(notifier, false));
}

TEST_F(StatusNotifierTest, WithoutABusNothingIsShown) {
    const StatusNotifier notifier(QDBusConnection(u"no such connection"_s));
    EXPECT_FALSE(notifier.isShown());
    EXPECT_TRUE(notifier.isSettled());
}

} // namespace
} // namespace quillon
