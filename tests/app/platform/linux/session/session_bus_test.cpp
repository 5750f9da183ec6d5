#include <quillon/tests/support/mute_bus.h>
#include <quillon/tests/support/private_bus.h>

#include <quillon/app/platform/linux/session/session_bus.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

namespace quillon {
namespace {

using namespace std::chrono_literals;

TEST(SessionBusTest, ABusThatAnswersTellsOwners) {
    PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    EXPECT_EQ(askBus(bus.address(), "org.example.Nobody", 5s).state, BusState::answers);
    EXPECT_FALSE(askBus(bus.address(), "org.example.Nobody", 5s).isOwned);
    QDBusConnection owner = bus.connect();
    ASSERT_TRUE(owner.registerService(QStringLiteral("org.example.Somebody")));
    EXPECT_TRUE(askBus(bus.address(), "org.example.Somebody", 5s).isOwned);
}

TEST(SessionBusTest, NobodyListeningIsAbsent) {
    PrivateBus bus;
    bus.kill();
    EXPECT_EQ(askBus(bus.address(), "org.example.Nobody", 5s).state, BusState::absent);
    EXPECT_EQ(askBus("unix:path=/nonexistent", "org.example.Nobody", 5s).state, BusState::absent);
    EXPECT_EQ(askBus("nonsense", "org.example.Nobody", 5s).state, BusState::absent);
    EXPECT_EQ(askBus("", "org.example.Nobody", 5s).state, BusState::absent);
}

TEST(SessionBusTest, ASilentBusIsGivenUpInTime) {
    const MuteBus bus;
    ASSERT_TRUE(bus.isListening());
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(askBus(bus.address(), "org.example.Nobody", 300ms).state, BusState::silent);
    const auto passed = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(passed, 300ms);
    EXPECT_LT(passed, 5s);
}

TEST(SessionBusTest, AskingASilentBusCanBeStopped) {
    const MuteBus bus;
    const auto begin = std::chrono::steady_clock::now();
    {
        const std::jthread asking([&bus](const std::stop_token& stop) {
            EXPECT_EQ(askBus(bus.address(), "org.example.Nobody", 60s, stop).state, BusState::silent);
        });
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
}

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";

/// Ends the process with many answers of the session bus still on their way.
[[noreturn]] void endBeforeAnswers(const std::string& address) {
    qputenv(addressVariable, QByteArray::fromStdString(address));
    const QDBusConnection bus = SessionBus().connection();
    for (int i = 0; i < 1000; ++i) {
        auto* const call = new QDBusPendingCallWatcher(bus.asyncCall(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId"))));
        QObject::connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
    }
    std::exit(0);
}

TEST(SessionBusDeathTest, AnswersThatComeWhileTheProcessEndsAreNoNews) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    constexpr auto shared = "QUILLON_ENDING_BUS";
    // The process that ends runs this test up to that point too, and would leave a bus of its own behind.
    std::optional<PrivateBus> bus;
    if (!qEnvironmentVariableIsSet(shared))
        qputenv(shared, QByteArray::fromStdString(bus.emplace().address()));
    EXPECT_EXIT(
        endBeforeAnswers(qgetenv(shared).toStdString()), testing::ExitedWithCode(0), testing::StrEq(""));
    qunsetenv(shared);
}

} // namespace
} // namespace quillon
