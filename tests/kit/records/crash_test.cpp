#include <quillon/kit/records/json_file.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int kills = 1000;
constexpr int commands = 150;

/// Every record of the book tells the same number, so that a mixture would show.
UsageBook bookOf(Count number) {
    UsageBook book;
    for (int i = 0; i < commands; ++i)
        book.apps["app"]["File › Command " + std::to_string(i)].typed = number;
    return book;
}

/// Saves ever larger numbers until it is killed.
[[noreturn]] void writeForEver(const JSONFile<UsageBook>& file, Count number) {
    while (!file.save(bookOf(number)))
        ++number;
    ::_exit(1);
}

/// How long a save takes here at its quickest; the kills fall within two of them, and later as long as the
/// machine is too busy to finish any.
std::chrono::microseconds timeOfSave(const JSONFile<UsageBook>& file) {
    auto quickest = std::chrono::microseconds::max();
    for (int round = 0; round < 5; ++round) {
        const auto start = Clock::now();
        EXPECT_EQ(file.save(bookOf(0)), std::nullopt);
        quickest =
            std::min(quickest, std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start));
    }
    return quickest;
}

TEST(JSONFileCrash, AKilledWriterLeavesOneOfTheValuesItWrote) {
    TemporaryFolder folder;
    const JSONFile<UsageBook> file(folder / "usage.json");
    std::mt19937_64 random(7);
    const auto shortest = static_cast<double>(2 * timeOfSave(file).count());
    std::uniform_real_distribution<double> part(0, 1);
    double longest = shortest;
    constexpr double waitFactor = 1.05;
    Count last = 0;
    int progressed = 0;
    for (int round = 0; round < kills; ++round) {
        const pid_t writer = ::fork();
        ASSERT_GE(writer, 0);
        if (writer == 0)
            writeForEver(file, last + 1);
        std::this_thread::sleep_for(std::chrono::duration<double, std::micro>(part(random) * longest));
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
        const std::optional<UsageBook> book = file.load();
        ASSERT_TRUE(book) << "after " << round << " kills";
        const Count number = book->record("app", "File › Command 0").value_or(UsageRecord{}).typed;
        ASSERT_EQ(*book, bookOf(number)) << "after " << round << " kills";
        ASSERT_GE(number, last);
        progressed += number > last;
        longest = number > last ? std::max(shortest, longest / waitFactor) : longest * waitFactor;
        last = number;
    }
    EXPECT_GT(progressed, kills / 20) << "too few saves were finished for the kills to mean anything";
    EXPECT_GT(folder.names().size(), 1u) << "no kill came in the middle of a save";
}

} // namespace
} // namespace quillon
