#include <quillon/kit/base/unicode.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

template <class Value>
void expectRoundTrip(const Value& value) {
    const std::optional<std::string> json = Json::encode(value);
    ASSERT_TRUE(json);
    const std::optional<Value> read = Json::decode<Value>(*json);
    ASSERT_TRUE(read) << *json;
    EXPECT_EQ(*read, value) << *json;
    EXPECT_EQ(Json::encode(*read), json);
}

TEST(JsonRoundTrip, KeepsArbitrarySheets) {
    RandomValues random(101);
    for (int round = 0; round < 400; ++round)
        expectRoundTrip(random.sheet());
}

TEST(JsonRoundTrip, KeepsArbitraryMapsOfSheets) {
    RandomValues random(102);
    for (int round = 0; round < 200; ++round)
        expectRoundTrip(random.sheets());
}

TEST(JsonRoundTrip, KeepsArbitraryUsage) {
    RandomValues random(103);
    for (int round = 0; round < 400; ++round)
        expectRoundTrip(random.usageBook());
}

TEST(JsonRoundTrip, KeepsArbitraryAnnotations) {
    RandomValues random(104);
    for (int round = 0; round < 400; ++round)
        expectRoundTrip(random.annotationBook());
}

TEST(JsonRoundTrip, KeepsTheSample) {
    expectRoundTrip(SampleMenus::sheet());
    expectRoundTrip(UsageBook{{{std::string(SampleMenus::bundleID), SampleMenus::usage()}}});
    expectRoundTrip(AnnotationBook{{{std::string(SampleMenus::bundleID), SampleMenus::annotations()}}});
}

TEST(JsonRoundTrip, KeepsEveryScalar) {
    AnnotationBook book;
    Annotation& annotation = book.apps["app"]["id"];
    for (char32_t scalar = 0; scalar <= 0x10ffff; ++scalar) {
        if (scalar >= 0xd800 && scalar < 0xe000)
            continue;
        unicode::append(annotation.note, scalar);
    }
    expectRoundTrip(book);
}

} // namespace
} // namespace quillon
