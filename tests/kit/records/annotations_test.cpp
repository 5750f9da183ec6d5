#include <quillon/kit/records/annotations.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <unordered_set>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

TEST(Annotation, IsEmptyWhenNothingWasSaid) {
    EXPECT_TRUE(Annotation().isEmpty());
    EXPECT_FALSE(Annotation{.pinned = true}.isEmpty());
    EXPECT_FALSE(Annotation{.note = "x"}.isEmpty());
    EXPECT_FALSE(Annotation{.note = " "}.isEmpty()) << "a note of blanks is a note";
    EXPECT_FALSE(Annotation{.muted = true}.isEmpty());
}

TEST(AnnotationBook, GivesBackWhatWasSet) {
    AnnotationBook book;
    const Annotation annotation{true, "note", true};
    book.set("app", "id", annotation);
    EXPECT_EQ(book.get("app", "id"), annotation);
    book.set("app", "id", {.note = "other"});
    EXPECT_EQ(book.get("app", "id"), Annotation{.note = "other"});
}

TEST(AnnotationBook, TheUnknownIsEmptyAndStaysUnknown) {
    const AnnotationBook book;
    EXPECT_EQ(book.get("app", "id"), Annotation());
    EXPECT_THAT(book.pinned("app"), IsEmpty());
    EXPECT_THAT(book.notes("app"), IsEmpty());
    AnnotationBook other;
    other.set("app", "id", {.muted = true});
    EXPECT_EQ(other.get("app", "other"), Annotation());
}

TEST(AnnotationBook, AnEmptyAnnotationRemovesWhatWasThere) {
    AnnotationBook book;
    book.set("app", "id", Annotation());
    EXPECT_EQ(book, AnnotationBook()) << "nothing is made for nothing";
    book.set("app", "one", {.pinned = true});
    book.set("app", "two", {.muted = true});
    book.set("app", "one", Annotation());
    EXPECT_EQ(book.apps.at("app").size(), 1u);
    book.set("app", "unknown", Annotation());
    EXPECT_EQ(book.apps.at("app").size(), 1u);
    book.set("app", "two", Annotation());
    EXPECT_EQ(book, AnnotationBook()) << "the last one takes its application along";
}

TEST(AnnotationBook, DropsAnApplicationThatWasEmptyBefore) {
    AnnotationBook book;
    book.apps["app"];
    book.set("app", "id", Annotation());
    EXPECT_EQ(book, AnnotationBook());
}

TEST(AnnotationBook, TogglingAPinTwiceLeavesNoTrace) {
    AnnotationBook book;
    book.togglePin("app", "id");
    EXPECT_EQ(book.get("app", "id"), Annotation{.pinned = true});
    book.togglePin("app", "id");
    EXPECT_EQ(book, AnnotationBook());
}

TEST(AnnotationBook, TogglingAPinKeepsNoteAndMute) {
    AnnotationBook book;
    book.set("app", "id", {.pinned = true, .note = "note", .muted = true});
    book.togglePin("app", "id");
    EXPECT_EQ(book.get("app", "id"), (Annotation{.pinned = false, .note = "note", .muted = true}));
    book.togglePin("app", "id");
    EXPECT_EQ(book.get("app", "id"), (Annotation{.pinned = true, .note = "note", .muted = true}));
}

TEST(AnnotationBook, ListsPinsAndNotesOfOneApplication) {
    AnnotationBook book;
    book.set("app", "pinned", {.pinned = true});
    book.set("app", "noted", {.note = " as it is \n"});
    book.set("app", "both", {.pinned = true, .note = "b"});
    book.set("app", "muted", {.muted = true});
    book.set("app", "blank", {.note = " "});
    book.set("other", "elsewhere", {.pinned = true, .note = "n"});
    EXPECT_THAT(book.pinned("app"), ElementsAre("both", "pinned"));
    EXPECT_THAT(
        book.notes("app"), ElementsAre(Pair("blank", " "), Pair("both", "b"), Pair("noted", " as it is \n")));
}

TEST(AnnotationBook, GivesAllOfAnApplication) {
    AnnotationBook book;
    EXPECT_TRUE(book.annotations("app").empty());
    book.set("app", "id", {.note = "n"});
    EXPECT_THAT(book.annotations("app"), ElementsAre(Pair("id", Annotation{.note = "n"})));
    EXPECT_TRUE(book.annotations("other").empty());
}

TEST(AnnotationBook, NeverHoldsAnythingEmpty) {
    RandomValues random(71);
    AnnotationBook book;
    for (int step = 0; step < 5000; ++step) {
        const std::string app = random.chance(0.5) ? "one" : "two";
        const std::string id = random.title();
        if (random.chance(0.3))
            book.togglePin(app, id);
        else
            book.set(
                app, id, {random.chance(0.2), random.chance(0.2) ? random.text() : "", random.chance(0.2)});
        for (const auto& [name, annotations] : book.apps) {
            ASSERT_FALSE(annotations.empty());
            for (const auto& [stored, annotation] : annotations)
                ASSERT_FALSE(annotation.isEmpty());
        }
    }
}

TEST(AnnotationBook, ComparesAndHashesByEverything) {
    const std::unordered_set<Annotation> annotations{
        {}, {}, {.pinned = true}, {.note = "x"}, {.muted = true}, {.pinned = true, .muted = true}};
    EXPECT_EQ(annotations.size(), 5u);
    AnnotationBook one;
    one.togglePin("app", "id");
    AnnotationBook two;
    two.togglePin("app", "other");
    const std::unordered_set<AnnotationBook> books{AnnotationBook(), one, one, two};
    EXPECT_EQ(books.size(), 3u);
}

} // namespace
} // namespace quillon
