#include "scenes.h"

#include <quillon/tests/app/views/support/many_entries.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Stand-in for an application's icon: a disc on a rounded square.
IconPixels madeUpIcon() {
    constexpr int size = 96;
    IconPixels icon{.width = size, .height = size, .argb = std::vector<std::uint32_t>(size * size)};
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const int dx = x - size / 2;
            const int dy = y - size / 2;
            const bool disc = dx * dx + dy * dy < 26 * 26;
            const int cornerX = std::max(0, std::abs(dx) - 26);
            const int cornerY = std::max(0, std::abs(dy) - 26);
            const bool square = cornerX * cornerX + cornerY * cornerY < 20 * 20;
            icon.argb[static_cast<std::size_t>(y * size + x)] =
                disc     ? 0xfffdf6e3
                : square ? 0xff3f7cac + static_cast<std::uint32_t>(y / 3)
                         : 0;
        }
    }
    return icon;
}

void sample(ViewDesk& desk) {
    desk.trust();
    desk.desktop.icons.set("com.example.sketchpad", madeUpIcon());
    desk.showSample();
}

void longTexts(ViewDesk& desk) {
    desk.trust();
    AppSheet sheet = sheetOfLongTitles();
    const std::string id = sheet.entries[0].id();
    const std::string saveID = sheet.entries[1].id();
    const std::string findID = sheet.entries[5].id();
    UsageRecords usage;
    usage[id].clicked = 12'345;
    usage[saveID].clicked = 3;
    Annotations said;
    said[id] = {
        .pinned = true,
        .note = "Nimmt die Vorlage, die zuletzt in diesem Ordner benutzt wurde, und fragt "
                "vorher nach dem Namen des neuen Dokuments",
        .muted = false};
    said[saveID] = {.pinned = true, .note = "", .muted = false};
    said[findID] = {.pinned = false, .note = "kurz", .muted = false};
    desk.model.showSample(std::move(sheet), std::move(usage), std::move(said));
}

} // namespace

std::vector<Scene> overlayScenes() {
    const auto trusted = [](ViewDesk& desk) { desk.trust(); };
    const auto reading = [](ViewDesk& desk) {
        desk.trust();
        desk.beginReading("Sketchpad");
    };
    const auto none = [](ViewDesk& desk) {
        desk.trust();
        desk.show(emptySheet("Terminal"));
    };
    const auto many = [](ViewDesk& desk) {
        desk.trust();
        desk.show(sheetOfMany(300));
    };
    return {
        {u"overlay-sample"_s, sample, Stickiness::held, {}},
        {u"overlay-sample-kept"_s, sample, Stickiness::sticky, {}},
        {u"overlay-query"_s, sample, Stickiness::sticky, u"shift cmd g"_s},
        {u"overlay-query-words"_s, sample, Stickiness::sticky, u"copy"_s},
        {u"overlay-no-match"_s, sample, Stickiness::sticky, u"xyz"_s},
        {u"overlay-300"_s, many, Stickiness::held, {}},
        {u"overlay-long-texts"_s, longTexts, Stickiness::sticky, {}},
        {u"overlay-needs-accessibility"_s, [](ViewDesk&) {}, Stickiness::sticky, {}},
        {u"overlay-no-app"_s, trusted, Stickiness::held, {}},
        {u"overlay-reading"_s, reading, Stickiness::held, {}},
        {u"overlay-no-shortcuts"_s, none, Stickiness::held, {}},
    };
}

} // namespace quillon
