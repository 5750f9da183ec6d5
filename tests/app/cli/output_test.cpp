#include <quillon/app/cli/output.h>

#include <gtest/gtest.h>

#include <array>

#include <fcntl.h>

namespace quillon {
namespace {

/// The two ends of a pipe.
struct Pipe {
    Pipe() { EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0); }
    ~Pipe() {
        ::close(ends[0]);
        closeInput();
    }
    void closeInput() {
        if (ends[1] >= 0)
            ::close(std::exchange(ends[1], -1));
    }
    /// Everything that was written.
    std::string all() {
        closeInput();
        std::string text;
        std::array<char, 4096> part{};
        for (ssize_t count = 0; (count = ::read(ends[0], part.data(), part.size())) > 0;)
            text.append(part.data(), static_cast<std::size_t>(count));
        return text;
    }

    std::array<int, 2> ends{};
};

class OutputTest : public testing::Test {
  protected:
    Pipe results;
    Pipe messages;
    Output output{results.ends[1], messages.ends[1]};
};

TEST_F(OutputTest, KeepsResultsAndMessagesApart) {
    output.print("a\n");
    output.printData("b\x1b\n");
    output.say("c" + TerminalText::of("\n"));
    EXPECT_EQ(output.fail(ExitCode::noSuchApp, "d"), ExitCode::noSuchApp);
    EXPECT_EQ(output.finish(ExitCode::usage), ExitCode::usage);
    EXPECT_EQ(results.all(), "a\nb\x1b\n");
    EXPECT_EQ(messages.all(), "quillon: c<U+000A>\nquillon: d\n");
}

TEST_F(OutputTest, LostResultsAreAFailureThatIsTold) {
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    Output lost(full, messages.ends[1]);
    lost.print("a");
    lost.print("b");
    EXPECT_EQ(lost.finish(ExitCode::success), ExitCode::failure);
    ::close(full);
    const std::string said = messages.all();
    EXPECT_TRUE(said.starts_with("quillon: the output was lost: ")) << said;
    EXPECT_EQ(said.find('\n'), said.size() - 1);
}

TEST_F(OutputTest, JsonIsALine) {
    output.printJson("{}");
    EXPECT_EQ(output.finish(ExitCode::success), ExitCode::success);
    EXPECT_EQ(results.all(), "{}\n");
}

TEST_F(OutputTest, WhatJsonCannotHoldIsAFailureThatIsTold) {
    output.printJson(std::nullopt);
    EXPECT_EQ(output.finish(ExitCode::success), ExitCode::failure);
    EXPECT_EQ(results.all(), "");
    EXPECT_EQ(messages.all(), "quillon: a name in the result is not UTF-8, and JSON holds nothing else\n");
}

TEST_F(OutputTest, NothingIsLostOfNothing) {
    Output closed(-1, messages.ends[1]);
    EXPECT_EQ(closed.finish(ExitCode::success), ExitCode::success);
    EXPECT_EQ(messages.all(), "");
}

TEST_F(OutputTest, LostMessagesAreNobodysLoss) {
    Output deaf(results.ends[1], -1);
    deaf.say("a");
    EXPECT_EQ(deaf.finish(ExitCode::success), ExitCode::success);
}

} // namespace
} // namespace quillon
