#include <quillon/tests/support/private_bus.h>
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/session/tray_host.h>

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <chrono>
#include <future>

namespace quillon {
namespace {

using namespace std::chrono_literals;

class FakeWatcher final : public QDBusVirtualObject {
  public:
    explicit FakeWatcher(QDBusConnection bus) {
        bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), this);
        bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    bool hasHost = true;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost))));
    }
};

/// Asks on another thread, so that the stand-in on this one can answer.
bool ask(const QDBusConnection& bus) {
    auto answer = std::async(std::launch::async, [&] { return hasTrayHost(bus, 10s); });
    while (answer.wait_for(1ms) != std::future_status::ready)
        QCoreApplication::processEvents();
    return answer.get();
}

TEST(TrayHostTest, IsThereWhenAHostIsRegistered) {
    PrivateBus bus;
    FakeWatcher watcher(bus.connect());
    const QDBusConnection connection = bus.connect();
    EXPECT_TRUE(ask(connection));
    watcher.hasHost = false;
    EXPECT_FALSE(ask(connection));
}

TEST(TrayHostTest, IsNotThereWithoutAWatcherOrABus) {
    PrivateBus bus;
    EXPECT_FALSE(hasTrayHost(bus.connect(), 10s));
    EXPECT_FALSE(hasTrayHost(QDBusConnection(QStringLiteral("no such connection"))));
}

} // namespace
} // namespace quillon
