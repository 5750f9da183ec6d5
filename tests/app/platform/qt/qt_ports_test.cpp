#include <quillon/app/platform/qt/end_signals.h>
#include <quillon/app/platform/qt/qt_timers.h>
#include <quillon/app/platform/qt/stall_meter.h>
#include <quillon/app/platform/qt/system_clock.h>
#include <quillon/app/platform/qt/thread_background.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <atomic>
#include <csignal>
#include <latch>
#include <memory>

namespace quillon {
namespace {

class QtPorts : public testing::Test {
  protected:
    void runLoop() {
        const auto guard = m_timers.after(Seconds(20), [this] {
            ADD_FAILURE() << "nothing happened for 20 s";
            m_loop.quit();
        });
        m_loop.exec();
    }

    QEventLoop m_loop;
    QtTimers m_timers;
};

TEST_F(QtPorts, ARepeatingTimerTicksUntilItsHandleEnds) {
    int ticks = 0;
    Subscription timer;
    timer = m_timers.every(Seconds(0.001), [&] {
        if (++ticks == 3) {
            timer.reset();
            m_loop.quit();
        }
    });
    runLoop();
    EXPECT_EQ(ticks, 3);
}

TEST_F(QtPorts, ATimerWhoseHandleEndedDoesNotFire) {
    bool fired = false;
    m_timers.after(Seconds(0), [&] { fired = true; }).reset();
    const auto end = m_timers.after(Seconds(0.01), [this] { m_loop.quit(); });
    runLoop();
    EXPECT_FALSE(fired);
}

TEST_F(QtPorts, JobsRunBesideTheMainThreadAndContinueOnIt) {
    ThreadBackground background;
    QThread* const mainThread = QThread::currentThread();
    QThread* jobThread = nullptr;
    QThread* continuationThread = nullptr;
    const Subscription job = background.run([&](std::stop_token) {
        jobThread = QThread::currentThread();
        return [&] {
            continuationThread = QThread::currentThread();
            m_loop.quit();
        };
    });
    runLoop();
    EXPECT_NE(jobThread, mainThread);
    EXPECT_EQ(continuationThread, mainThread);
}

TEST_F(QtPorts, AJobThatWaitsDoesNotHoldUpTheNext) {
    ThreadBackground background;
    std::latch second(1);
    const Subscription waiting = background.run([&](std::stop_token) {
        second.wait();
        return [this] { m_loop.quit(); };
    });
    const Subscription next = background.run([&](std::stop_token) {
        second.count_down();
        return Background::Continuation();
    });
    runLoop();
}

TEST_F(QtPorts, TheLastJobThatRanTellsThatNoneDoes) {
    std::atomic<int> told = 0;
    std::latch bothRun(2);
    const auto meet = [&](std::stop_token) {
        bothRun.arrive_and_wait();
        return Background::Continuation();
    };
    {
        ThreadBackground background([&] { ++told; });
        const Subscription first = background.run(meet);
        const Subscription second = background.run(meet);
        bothRun.wait();
    }
    EXPECT_EQ(told, 1);
}

TEST_F(QtPorts, TheEndStopsJobsAndDropsTheirContinuations) {
    std::atomic<bool> stopped = false;
    bool continued = false;
    std::latch begun(1);
    {
        ThreadBackground background;
        const Subscription job = background.run([&](std::stop_token stop) {
            begun.count_down();
            while (!stop.stop_requested())
                QThread::yieldCurrentThread();
            stopped = true;
            return [&] { continued = true; };
        });
        begun.wait();
    }
    EXPECT_TRUE(stopped);
    QCoreApplication::processEvents();
    EXPECT_FALSE(continued);
}

TEST_F(QtPorts, AJobWhoseHandleEndsIsAskedToStopAndNotContinued) {
    ThreadBackground background;
    std::atomic<bool> stopped = false;
    bool continued = false;
    std::latch begun(1);
    Subscription given = background.run([&](std::stop_token stop) {
        begun.count_down();
        while (!stop.stop_requested())
            QThread::yieldCurrentThread();
        stopped = true;
        return [&] { continued = true; };
    });
    begun.wait();
    given.reset();
    background.finish();
    EXPECT_TRUE(stopped);
    QCoreApplication::processEvents();
    EXPECT_FALSE(continued);
}

TEST_F(QtPorts, AContinuationThatWaitsIsDroppedWithItsHandle) {
    ThreadBackground background;
    bool continued = false;
    std::latch worked(1);
    Subscription given = background.run([&](std::stop_token) {
        worked.count_down();
        return [&] { continued = true; };
    });
    worked.wait();
    given.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(continued);
}

TEST_F(QtPorts, ASignalToEndIsToldByTheEventLoop) {
    int asked = 0;
    {
        const EndSignals signals([&] {
            ++asked;
            m_loop.quit();
        });
        std::raise(SIGTERM);
        EXPECT_EQ(asked, 0);
        runLoop();
        EXPECT_EQ(asked, 1);
        std::raise(SIGHUP);
        runLoop();
        EXPECT_EQ(asked, 2);
    }
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL) << "as before";
}

TEST_F(QtPorts, TheSameSignalSentAgainEndsTheProgram) {
    EXPECT_EXIT(
        {
            const EndSignals signals([] {});
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST_F(QtPorts, TheStallMeterSeesTheLongestBusyTime) {
    StallMeter meter;
    meter.start();
    const auto busy = m_timers.after(Seconds(0.01), [] { QThread::msleep(60); });
    const auto end = m_timers.after(Seconds(0.1), [this] { m_loop.quit(); });
    runLoop();
    EXPECT_GE(meter.longest(), std::chrono::milliseconds(40));
    meter.start();
    EXPECT_EQ(meter.longest(), StallMeter::Duration::zero());
}

TEST_F(QtPorts, TheSteadyClockNeverGoesBack) {
    const SystemClock clock;
    Instant last = clock.steadyNow();
    for (int i = 0; i < 1000; ++i) {
        const Instant now = clock.steadyNow();
        EXPECT_LE(last, now);
        last = now;
    }
}

TEST_F(QtPorts, TheClockTellsTheTimeOfDay) {
    const auto now = std::chrono::system_clock::now();
    EXPECT_LT(std::chrono::abs(SystemClock().now() - now), std::chrono::minutes(1));
}

} // namespace
} // namespace quillon

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
