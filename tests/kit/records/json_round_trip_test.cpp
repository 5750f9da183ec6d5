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
        const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
        if (scalar < 0x80)
            annotation.note += byte(scalar);
        else if (scalar < 0x800)
            annotation.note.append({byte(0xc0 | scalar >> 6), byte(0x80 | (scalar & 0x3f))});
        else if (scalar < 0x10000)
            annotation.note.append(
                {byte(0xe0 | scalar >> 12), byte(0x80 | (scalar >> 6 & 0x3f)), byte(0x80 | (scalar & 0x3f))});
        else
            annotation.note.append(
                {byte(0xf0 | scalar >> 18), byte(0x80 | (scalar >> 12 & 0x3f)),
                 byte(0x80 | (scalar >> 6 & 0x3f)), byte(0x80 | (scalar & 0x3f))});
    }
    expectRoundTrip(book);
}

} // namespace
} // namespace quillon
