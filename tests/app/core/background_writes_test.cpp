#include <quillon/app/core/background_writes.h>
#include <quillon/app/platform/fake/fake_background.h>

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BackgroundWritesTest : public testing::Test {
  protected:
    BackgroundWrites::Write write(const std::string& text) {
        return [this, text] { written.push_back(text); };
    }
    /// A write in the middle of which something happens.
    BackgroundWrites::Write write(const std::string& text, std::function<void()> meanwhile) {
        return [this, text, meanwhile = std::move(meanwhile)] {
            written.push_back(text + " begins");
            meanwhile();
            written.push_back(text + " ends");
        };
    }

    FakeBackground background;
    BackgroundWrites writes{background};
    std::vector<std::string> written;
};

TEST_F(BackgroundWritesTest, WritesInTheBackground) {
    writes.put(write("first"));
    EXPECT_THAT(written, IsEmpty());
    background.runAll();
    writes.put(write("second"));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first", "second"));
}

TEST_F(BackgroundWritesTest, OfThoseThatWaitOnlyTheNewestIsWritten) {
    for (const char* text : {"first", "second", "third"})
        writes.put(write(text));
    EXPECT_EQ(background.waiting(), 1U);
    background.runAll();
    EXPECT_THAT(written, ElementsAre("third"));
}

TEST_F(BackgroundWritesTest, TheNewestFollowsOneThatIsUnderWay) {
    writes.put(write("first", [this] {
        writes.put(write("second"));
        writes.put(write("third"));
        EXPECT_EQ(background.waiting(), 0U) << "one at a time";
    }));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first begins", "first ends", "third"));
    EXPECT_EQ(background.waiting(), 0U);
}

TEST_F(BackgroundWritesTest, WhatComesBeforeTheEndIsToldFollowsToo) {
    writes.put(write("first"));
    background.workNext();
    writes.put(write("second"));
    EXPECT_EQ(background.waiting(), 0U);
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first", "second"));
}

TEST_F(BackgroundWritesTest, FinishingWritesWhatHasNotBegunAndOnlyOnce) {
    writes.put(write("first"));
    writes.finish();
    EXPECT_THAT(written, ElementsAre("first"));
    background.runAll();
    writes.finish();
    EXPECT_THAT(written, ElementsAre("first"));
}

TEST_F(BackgroundWritesTest, FinishingWritesWhatFollowsOneThatIsDone) {
    writes.put(write("first"));
    background.workNext();
    writes.put(write("second"));
    writes.finish();
    EXPECT_THAT(written, ElementsAre("first", "second"));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first", "second"));
}

TEST_F(BackgroundWritesTest, FinishingWritesWhatTheBackgroundDropped) {
    writes.put(write("first"));
    background.requestStop();
    writes.finish();
    EXPECT_THAT(written, ElementsAre("first"));
}

TEST_F(BackgroundWritesTest, GoesOnAfterFinishing) {
    writes.put(write("first"));
    writes.finish();
    writes.put(write("second"));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first", "second"));
}

TEST_F(BackgroundWritesTest, NothingThatWaitedOvertakesTheLastWord) {
    writes.put(write("first"));
    writes.finishWith(write("last"));
    EXPECT_THAT(written, ElementsAre("last"));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("last"));
}

TEST_F(BackgroundWritesTest, ItsEndDropsWhatHasNotBegun) {
    {
        BackgroundWrites shortLived(background);
        shortLived.put(write("first"));
    }
    EXPECT_EQ(background.waiting(), 0U);
    background.runAll();
    EXPECT_THAT(written, IsEmpty());
}

TEST_F(BackgroundWritesTest, AWriteUnderWayGoesOnToItsEnd) {
    auto shortLived = std::make_unique<BackgroundWrites>(background);
    shortLived->put(write("first", [&] { shortLived.reset(); }));
    background.runAll();
    EXPECT_THAT(written, ElementsAre("first begins", "first ends"));
}

} // namespace
} // namespace quillon
