#include <quillon/app/languages/translations.h>
#include <quillon/app/views/tray/tray_lines.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using Kind = TrayMenuItem::Kind;

/// What the menu reads: separators as "-", lines that cannot be chosen in brackets, keys behind a bar.
std::vector<std::string> read(const TrayFacts& facts) {
    std::vector<std::string> lines;
    for (const TrayMenuItem& item : trayLines(facts)) {
        switch (item.kind) {
        case Kind::separator: lines.emplace_back("-"); break;
        case Kind::line: lines.push_back("[" + item.label + "]"); break;
        case Kind::command:
            lines.push_back(item.label + (item.key ? " | " + std::string(item.key->glyph()) : ""));
            break;
        }
    }
    return lines;
}

const std::vector<std::string> belowTheHint{
    "-", "Practice", "Library…", "-", "Settings | ,", "Check for Updates…", "Quit Quillon | Q"};

std::vector<std::string> withTheRest(std::vector<std::string> lines) {
    lines.insert(lines.end(), belowTheHint.begin(), belowTheHint.end());
    return lines;
}

TEST(TrayLines, OfATrustedProgram) {
    EXPECT_THAT(
        read({.trusted = true, .appName = {}}),
        ElementsAreArray(withTheRest({"Show Shortcuts", "[Or hold ⌘ in any app]"})));
}

TEST(TrayLines, WithoutPermissionTheyBeginWithAskingForIt) {
    EXPECT_THAT(
        read({.trusted = false, .appName = {}}),
        ElementsAreArray(
            withTheRest({"Allow Accessibility…", "-", "Show Shortcuts", "[Or hold ⌘ in any app]"})));
    EXPECT_THAT(
        read({.trusted = false, .appName = "Sketchpad"}),
        ElementsAreArray(withTheRest(
            {"Allow Accessibility…", "-", "Show Shortcuts for Sketchpad", "[Or hold ⌘ in any app]"})));
}

TEST(TrayLines, NameTheCurrentApplication) {
    EXPECT_THAT(
        read({.trusted = true, .appName = "Drag & Drop_1"}),
        ElementsAreArray(withTheRest({"Show Shortcuts for Drag & Drop_1", "[Or hold ⌘ in any app]"})))
        << "each as it is";
    EXPECT_EQ(
        read({.trusted = true, .appName = "Two\nlines\tand  \u202emore"}).front(),
        "Show Shortcuts for Two␤lines and \ufffdmore");
}

TEST(TrayLines, TheHintNamesTheTriggerKey) {
    EXPECT_EQ(
        read({.trusted = true, .appName = {}, .trigger = TriggerKey::option})[1], "[Or hold ⌥ in any app]");
    EXPECT_EQ(
        read({.trusted = true, .appName = {}, .trigger = TriggerKey::control})[1], "[Or hold ⌃ in any app]");
}

TEST(TrayLines, TheHintShowsTheTriggerKeyByItsName) {
    EXPECT_EQ(
        read(
            {.trusted = true,
             .appName = {},
             .trigger = TriggerKey::command,
             .keyLabels = KeyLabels::names})[1],
        "[Or hold Super in any app]");
}

TEST(TrayLines, AreInTheLanguageOfTheProgram) {
    const Translations german({QStringLiteral("de")});
    EXPECT_THAT(
        read(
            {.trusted = true,
             .appName = "Sketchpad",
             .trigger = TriggerKey::control,
             .keyLabels = KeyLabels::names}),
        ElementsAre(
            "Tastenkürzel von Sketchpad zeigen", "[Oder Strg in einer Anwendung halten]", "-", "Üben",
            "Bibliothek …", "-", "Einstellungen | ,", "Nach Aktualisierungen suchen …",
            "Quillon beenden | Q"));
}

TEST(TrayLines, EveryLineKeepsAnIdOfItsOwn) {
    const auto without = trayLines({.trusted = false, .appName = {}});
    std::set<int> ids;
    for (const TrayMenuItem& item : without) {
        EXPECT_GT(item.id, 0);
        EXPECT_TRUE(ids.insert(item.id).second) << item.id;
    }
    const auto with = trayLines({.trusted = true, .appName = "Sketchpad", .trigger = TriggerKey::control});
    ASSERT_EQ(with.size() + 2, without.size());
    for (std::size_t i = 0; i < with.size(); ++i)
        EXPECT_EQ(with[i].id, without[i + 2].id);
}

} // namespace
} // namespace quillon
