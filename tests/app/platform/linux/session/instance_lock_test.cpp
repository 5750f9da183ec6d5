#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/session/instance_lock.h>

#include <gtest/gtest.h>

#include <array>
#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

/// Another process that has the lock until it is ended.
class Holder {
  public:
    enum class WhenTold { ends, staysOn };

    Holder(const std::filesystem::path& file, WhenTold whenTold) {
        std::array<int, 2> ready{};
        EXPECT_EQ(::pipe2(ready.data(), O_CLOEXEC), 0);
        m_pid = ::fork();
        if (m_pid == 0) {
            if (whenTold == WhenTold::staysOn)
                std::signal(SIGTERM, SIG_IGN);
            InstanceLock lock(file);
            const char answer = lock.take() ? 'y' : 'n';
            if (::write(ready[1], &answer, 1) == 1)
                ::pause();
            ::_exit(0);
        }
        ::close(ready[1]);
        char answer = 'n';
        m_holds = ::read(ready[0], &answer, 1) == 1 && answer == 'y';
        ::close(ready[0]);
    }
    ~Holder() {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    bool holds() const { return m_holds; }

  private:
    pid_t m_pid = -1;
    bool m_holds = false;
};

class InstanceLockTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "lock";
};

TEST_F(InstanceLockTest, IsHeldByOneProcess) {
    InstanceLock lock(file);
    {
        const Holder other(file, Holder::WhenTold::ends);
        ASSERT_TRUE(other.holds());
        EXPECT_FALSE(lock.take());
    }
    EXPECT_TRUE(lock.take());
    EXPECT_TRUE(lock.take()) << "what one has can be taken again";
    const Holder other(file, Holder::WhenTold::ends);
    EXPECT_FALSE(other.holds());
}

TEST_F(InstanceLockTest, IsTakenFromAProcessThatEndsWhenTold) {
    const Holder other(file, Holder::WhenTold::ends);
    ASSERT_TRUE(other.holds());
    EXPECT_TRUE(InstanceLock(file).takeOver(10s));
}

TEST_F(InstanceLockTest, StaysWithAProcessThatDoesNotEnd) {
    const Holder other(file, Holder::WhenTold::staysOn);
    ASSERT_TRUE(other.holds());
    EXPECT_FALSE(InstanceLock(file).takeOver(100ms));
}

TEST_F(InstanceLockTest, IsEverybodysWhereThereIsNoPlaceForIt) {
    EXPECT_TRUE(InstanceLock("").take());
    EXPECT_TRUE(InstanceLock(folder.path() / "no" / "folder").takeOver(100ms));
}

TEST(InstanceLockFileTest, IsOneForEachDisplay) {
    const auto of = [](const std::string& display, const std::string& wayland) {
        return instanceLockFile([&](const char* name) {
            const std::string_view asked = name;
            return asked == "DISPLAY"           ? display
                   : asked == "WAYLAND_DISPLAY" ? wayland
                                                : std::string("/run/me");
        });
    };
    EXPECT_EQ(of(":1", ""), "/run/me/app.quillon.Quillon:1.lock");
    EXPECT_EQ(of("", "/tmp/wayland-0"), "/run/me/app.quillon.Quillon_tmp_wayland-0.lock");
    EXPECT_EQ(instanceLockFile([](const char*) { return std::string(); }), "");
}

} // namespace
} // namespace quillon
