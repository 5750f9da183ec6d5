#include <quillon/tests/support/fake_accessibility_service.h>
#include <quillon/tests/support/private_bus.h>
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/access/accessibility_bus_access.h>

#include <QFileSystemWatcher>

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <memory>

namespace quillon {
namespace {

using namespace std::chrono_literals;

struct AccessibilityBusAccessTest : testing::Test {
    static void SetUpTestSuite() { s_bus = std::make_unique<PrivateBus>(); }
    static void TearDownTestSuite() { s_bus.reset(); }

    void SetUp() override {
        ASSERT_TRUE(s_bus->isRunning());
        service.enabled = true;
    }
    void TearDown() override { service.disappear(); }
    /// Never asks again by itself, unless told otherwise.
    void start(std::chrono::milliseconds askInterval = 24h) {
        access = std::make_unique<AccessibilityBusAccess>(s_bus->connect(), askInterval);
        listener = access->onChanged([this] { ++changes; });
    }
    void startTrusted() {
        service.appear();
        start();
        ASSERT_TRUE(waitFor([&] { return access->isTrusted(); }));
    }

    static inline std::unique_ptr<PrivateBus> s_bus;
    FakeAccessibilityService service{s_bus->connect()};
    std::unique_ptr<AccessibilityBusAccess> access;
    int changes = 0;
    Subscription listener;
};

TEST_F(AccessibilityBusAccessTest, IsTrustedOnceTheBusAndTheSwitchHaveAnswered) {
    service.appear();
    start();
    EXPECT_FALSE(access->isTrusted());
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
    EXPECT_EQ(changes, 1);
}

TEST_F(AccessibilityBusAccessTest, FollowsTheSwitch) {
    startTrusted();
    service.setEnabled(false);
    EXPECT_TRUE(waitFor([&] { return !access->isTrusted(); }));
    service.setEnabled(true);
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
    EXPECT_EQ(changes, 3);
}

TEST_F(AccessibilityBusAccessTest, ADesktopWithoutTheSwitchIsTrusted) {
    service.hasSwitch = false;
    service.enabled = false;
    service.appear();
    start();
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
}

TEST_F(AccessibilityBusAccessTest, WithoutAnAddressThereIsNoBus) {
    service.address.clear();
    service.appear();
    start();
    ASSERT_TRUE(waitFor([&] { return service.questions >= 2; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(access->isTrusted());
}

TEST_F(AccessibilityBusAccessTest, FollowsTheServiceAsItComesAndGoes) {
    start();
    EXPECT_FALSE(access->isTrusted());
    service.appear();
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
    service.disappear();
    EXPECT_TRUE(waitFor([&] { return !access->isTrusted(); }));
    service.appear();
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
    EXPECT_EQ(changes, 3);
}

TEST_F(AccessibilityBusAccessTest, AskingTurnsTheSwitchOnAndNothingElse) {
    service.enabled = false;
    service.appear();
    start();
    ASSERT_TRUE(waitFor([&] { return service.questions >= 2; }));
    access->ask();
    EXPECT_TRUE(waitFor([&] { return access->isTrusted(); }));
    EXPECT_TRUE(service.enabled);
    EXPECT_EQ(service.written, QStringList{QStringLiteral("IsEnabled")});
}

TEST_F(AccessibilityBusAccessTest, NothingIsWrittenUnlessAsked) {
    startTrusted();
    EXPECT_TRUE(service.written.isEmpty());
}

TEST_F(AccessibilityBusAccessTest, AChangeThatNoSignalToldIsFoundByAskingAgain) {
    service.appear();
    start(0ms);
    ASSERT_TRUE(waitFor([&] { return access->isTrusted(); }));
    service.enabled = false;
    EXPECT_TRUE(waitFor([&] { return !access->isTrusted(); }));
}

TEST_F(AccessibilityBusAccessTest, AsksAgainOnlyAfterAWhile) {
    startTrusted();
    const int before = service.questions;
    for (int i = 0; i < 1000; ++i)
        access->isTrusted();
    service.setEnabled(false);
    ASSERT_TRUE(waitFor([&] { return changes == 2; }));
    EXPECT_EQ(service.questions, before);
}

TEST_F(AccessibilityBusAccessTest, AServiceThatNeverAnswersHoldsNobodyUp) {
    service.answers = false;
    service.appear();
    const auto begin = std::chrono::steady_clock::now();
    start(0ms);
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(access->isTrusted());
    access->ask();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 2s);
}

TEST(AccessibilityBusAccessWithoutSessionTest, IsNotTrusted) {
    AccessibilityBusAccess access(QDBusConnection(QStringLiteral("no such connection")));
    access.ask();
    EXPECT_FALSE(access.isTrusted());
}

TEST(AccessibilityBusAccessWithoutSessionTest, ABusThatGoesAwayIsNoticed) {
    PrivateBus bus;
    FakeAccessibilityService service(bus.connect());
    service.enabled = true;
    service.appear();
    AccessibilityBusAccess access(bus.connect(), 0ms);
    ASSERT_TRUE(waitFor([&] { return access.isTrusted(); }));
    bus.kill();
    EXPECT_TRUE(waitFor([&] { return !access.isTrusted(); }));
}

TEST(AccessibilitySettingsPanelTest, TheDesktopsProgramIsStarted) {
    const TemporaryFolder folder;
    const auto panel = folder.write("mate-at-properties", "#!/bin/sh\n: > \"${0%/*}/started\"\n");
    std::filesystem::permissions(panel, std::filesystem::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.path().string()));
    qputenv("XDG_CURRENT_DESKTOP", "MATE");
    QFileSystemWatcher watcher;
    watcher.addPath(QString::fromStdString(folder.path().string()));

    AccessibilityBusAccess access(QDBusConnection(QStringLiteral("no such connection")));
    EXPECT_TRUE(access.hasSettings());
    EXPECT_TRUE(access.openSettings());
    EXPECT_TRUE(waitFor([&] { return std::filesystem::exists(folder.path() / "started"); }));

    std::filesystem::remove(panel);
    EXPECT_FALSE(access.hasSettings());
    EXPECT_FALSE(access.openSettings());
    qputenv("PATH", path);
}

} // namespace
} // namespace quillon
