#include "printed_samples.h"

#include <quillon/kit/menu/menu_parser.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/support/recordings/recordings.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace quillon {

namespace {

const Modifiers everyModifier{Modifiers::command, Modifiers::shift, Modifiers::option, Modifiers::control};

std::string repeated(const std::string& text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

} // namespace

AnnotatedSheet emptySheet(std::string appName) {
    return {{.bundleID = "org.example." + appName, .appName = std::move(appName), .entries = {}}};
}

AnnotatedSheet sampleSheet() {
    return {SampleMenus::sheet(), SampleMenus::annotations()};
}

AnnotatedSheet gimpSheet() {
    const std::vector<std::string> files = recordingFiles();
    const auto file =
        std::ranges::find_if(files, [](const std::string& name) { return name.ends_with("gimp.json"); });
    return {
        {.bundleID = "gimp",
         .appName = "GNU Image Manipulation Program",
         .entries = MenuParser::entries(plainReading(*file), MenuParser::defaultMaxDepth)}};
}

AnnotatedSheet manyEntries(std::size_t count) {
    AnnotatedSheet many{{.bundleID = "org.example.Atelier", .appName = "Atelier", .entries = {}}};
    for (std::size_t i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        const Shortcut shortcut{
            i % 3 == 0 ? Modifiers{Modifiers::command} : everyModifier,
            i % 5 == 0 ? Key::special(allSpecialKeys[i % allSpecialKeys.size()])
                       : Key::character(std::string(1, static_cast<char>('A' + i % 26)))};
        many.sheet.entries.push_back(
            {{"Menu " + std::to_string(i * 12 / count), "Convert selection " + number + " to path"},
             shortcut});
        Annotation annotation{.pinned = i % 9 == 0};
        if (i % 7 == 0)
            annotation.note = repeated("Note " + number + " to remember this one by. ", i % 8 + 1);
        if (!annotation.isEmpty())
            many.annotations[many.sheet.entries.back().id()] = annotation;
    }
    return many;
}

AnnotatedSheet hostileSheet() {
    AnnotatedSheet hostile{
        {.bundleID = "org.example.Hostile",
         .appName = "A name\nof\tmany lines " + repeated("and long words ", 30),
         .entries = {}}};
    const std::array<std::string, 8> titles{
        repeated("Endless title ", 22),
        repeated("W", 300),
        "פתח קובץ " + repeated("ארוך מאוד ", 10),
        repeated("افتح الملف ", 20),
        "👩‍👩‍👧‍👦 Family 🇩🇪",
        "\u202eturned around\nand\tbroken\x1b[31m",
        "",
        "Z" + repeated("\u0301", 100)};
    const std::array<std::string, 7> notes{
        "First line\nsecond line\n\n\tindented",
        repeated("0123456789", 1000),
        repeated("many words ", 900),
        repeated("הערה ארוכה ", 30),
        repeated("😀👩‍👩‍👧 ", 100),
        " \n ",
        "\u202e\u2067 unbalanced"};
    const auto add = [&](const std::string& menu, const std::string& title, Key key,
                         const std::string& note) {
        hostile.sheet.entries.push_back({{menu, title}, {everyModifier, std::move(key)}});
        hostile.annotations[hostile.sheet.entries.back().id()] = {
            .pinned = note.size() % 2 == 0, .note = note};
    };
    for (std::size_t i = 0; i < 70; ++i)
        add(i % 4 == 3 ? "Menu " + std::to_string(i) : repeated("Very long menu ", 20),
            titles[i % titles.size()] + std::to_string(i),
            Key::special(allSpecialKeys[i % allSpecialKeys.size()]), notes[i % notes.size()]);
    return hostile;
}

} // namespace quillon
