#include <quillon/kit/records/json_codec.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quillon {
namespace {

using namespace std::string_literals;

/// What is said of `text`, in which the offset that is expected is marked by "^".
template <class Value>
void expectFault(std::string text, std::string_view reason) {
    const std::size_t offset = text.find('^');
    ASSERT_NE(offset, std::string::npos) << text;
    text.erase(offset, 1);
    const Outcome<Value, Json::Fault> outcome = Json::tryDecode<Value>(text);
    ASSERT_TRUE(outcome.failure()) << text;
    EXPECT_EQ(outcome.failure()->reason, reason) << text;
    EXPECT_EQ(outcome.failure()->offset, offset) << text;
}

void expectUsageFault(const std::string& record, std::string_view reason) {
    expectFault<UsageBook>(R"({ "apps" : {"app":{"id": )" + record + "}}}", reason);
}

TEST(JsonFault, IsNoneWhereNothingIsWrong) {
    const Outcome<UsageBook, Json::Fault> outcome = Json::tryDecode<UsageBook>(R"({"apps":{}})");
    EXPECT_TRUE(outcome);
    EXPECT_EQ(outcome.failure(), nullptr);
    EXPECT_EQ(*outcome, UsageBook());
}

TEST(JsonFault, TellsWhatAMemberMustBe) {
    constexpr std::string_view counter = "\"clicked\" must be a whole number from 0 to 100000000000";
    for (const char* value :
         {"^-1", "^1.0", "^100000000001", "^9223372036854775808", "^true", "^null", "^[]", "^{}", "^\"1\""})
        expectUsageFault(R"({"typed":1 , "clicked": )" + std::string(value) + "}", counter);
    expectUsageFault(
        R"({"typed":1,"lastNudged":^"soon"})", "\"lastNudged\" must be a date as in 2024-05-01T09:30:00Z");
    expectFault<AnnotationBook>(R"({"apps":{"a":{"b":{"pinned":^0}}}})", "\"pinned\" must be true or false");
    expectFault<AnnotationBook>(R"({"apps":{"a":{"b":{"note":^[]}}}})", "\"note\" must be text");
    expectFault<UsageBook>(R"({"apps":^[]})", "\"apps\" must be an object");
    expectFault<AppSheet>(R"({"entries":^{}})", "\"entries\" must be a list");
    expectFault<AppSheet>(
        R"({"entries":[{"shortcut":{"modifiers":^""}}]})", "\"modifiers\" must be a whole number");
}

TEST(JsonFault, TellsWhatAnElementMustBe) {
    expectFault<AppSheet>(R"({"entries":[{"path":["a", ^1]}]})", "an element must be text");
    expectFault<UsageBook>(R"({"apps":{"a":{} , "b": ^1}})", "an element must be an object");
    expectFault<UsageBook>(" ^[]", "the whole must be an object");
    expectFault<UsageBook>("^12", "the whole must be an object");
}

TEST(JsonFault, TellsWhatIsLackingWhereItsObjectEnds) {
    expectUsageFault(R"({"clicked":0,"practiceRight":0,"typed":0 ^})", "an element lacks \"practiceWrong\"");
    expectFault<UsageBook>("{^}", "the whole lacks \"apps\"");
    expectFault<AppSheet>(R"({"entries":[{"shortcut":{"modifiers":3^}}]})", "\"shortcut\" lacks \"key\"");
}

TEST(JsonFault, TellsOfKeysThatAreNone) {
    const auto keyed = [](const std::string& key) {
        return R"({"entries":[{"shortcut":{"key":)" + key + "}}]}";
    };
    constexpr std::string_view either = "\"key\" must be an object with either \"char\" or \"special\"";
    expectFault<AppSheet>(keyed("{^}"), either);
    expectFault<AppSheet>(keyed(R"({"char":{"_0":"S"},"special":{"_0":"tab"}^})"), either);
    expectFault<AppSheet>(keyed("^1"), either);
    expectFault<AppSheet>(keyed(R"({"special":{"_0":^"Tab"}})"), "\"_0\" must be the name of a key");
    expectFault<AppSheet>(keyed(R"({"char":{^}})"), "\"char\" lacks \"_0\"");
}

TEST(JsonFault, TellsWhereTheTextIsNoJson) {
    constexpr std::string_view noJson = "the text is not JSON from here on";
    for (const char* text :
         {R"({"apps":{}}^})", R"({"apps":{}} ^x)", R"({"apps":{},^})", R"({^apps:{}})", R"({"apps" ^{}})",
          R"({"x":0^1,"apps":{}})", R"({"x":[1,2,3^}})", R"({"x":12 ^"y":3})", R"({"x":[true,^]})",
          R"({"x":^tru,"apps":{}})", R"({"x":^"\q"})", "{\"x\":^\"\xff\"}", "{\"x\":^\"a\nb\"}"})
        expectFault<UsageBook>(text, noJson);
    expectFault<UsageBook>("{\"apps\":{}}^"s + '\0' + "x", noJson);
}

TEST(JsonFault, TellsOfNumbersThatAreTooLarge) {
    expectFault<UsageBook>(R"({"x": ^1e400,"apps":{}})", "the number is too large");
}

TEST(JsonFault, TellsWhereTheTextEndsTooEarly) {
    for (const char* text :
         {"^", " ^", "{^", R"({"apps":^)", R"({"apps":{}^)", R"({"x":12^)", R"({"x":"a^)", R"({"x":tr^)",
          R"({"apps":{} ^)"})
        expectFault<UsageBook>(text, "the text ends too early");
}

TEST(JsonFault, TellsOfNestingThatGoesTooDeep) {
    expectFault<UsageBook>(
        R"({"x":)" + std::string(63, '[') + "^" + std::string(10, '['), "the text is nested too deeply");
}

TEST(JsonFault, NeverQuotesTheText) {
    // It may be anybody's: titles, notes, control characters.
    expectFault<UsageBook>("{\"apps\":{^\"\x1b[2J\":1}}", "the text is not JSON from here on");
    expectFault<UsageBook>("{\"apps\":{\"\u202esecret\":^1}}", "an element must be an object");
    expectFault<AppSheet>(
        "{\"entries\":[{\"shortcut\":{\"key\":{\"special\":{\"_0\":^\"\u202esecret\"}}}}]}",
        "\"_0\" must be the name of a key");
}

TEST(JsonFault, HasALineForALog) {
    EXPECT_EQ((Json::Fault{312, "\"clicked\" must be text"}.message()), "byte 312: \"clicked\" must be text");
}

} // namespace
} // namespace quillon
