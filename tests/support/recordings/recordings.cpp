#include "recordings.h"

#include <quillon/app/platform/linux/atspi/key_binding/key_binding.h>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

namespace quillon {
namespace {

using nlohmann::json;

std::vector<RawMenuItem> itemsOf(const json& list, atspi::ToolkitFamily family, int depth, int deepest);

/// Of Qt's items only those that would be commands and those that hold others are asked for everything.
bool matters(const json& recorded, const RawMenuItem& item, atspi::ToolkitFamily family) {
    return family != atspi::ToolkitFamily::qt || item.shortcut() || !recorded.at("children").empty();
}

/// GTK's items tell by a state that nobody sees them, Qt's by having no size.
bool isHidden(const json& recorded, const RawMenuItem& item, atspi::ToolkitFamily family) {
    if (family == atspi::ToolkitFamily::gtk)
        return !recorded.at("visible").get<bool>();
    return family == atspi::ToolkitFamily::qt && matters(recorded, item, family)
           && recorded.at("size").at(1) == 0;
}

RawMenuItem itemOf(const json& recorded, atspi::ToolkitFamily family, int depth, int deepest) {
    RawMenuItem item;
    item.title = recorded.at("name").get<std::string>();
    if (depth <= deepest)
        item.children = itemsOf(recorded.at("children"), family, depth + 1, deepest);
    if (item.children.empty() && !item.title.empty()) {
        const auto binding = recorded.at("keyBinding").get<std::string>();
        const AxKeyEquivalent equivalent = atspi::keyEquivalent({binding, family, item.title});
        item.cmdChar = equivalent.character;
        item.cmdModifiers = equivalent.modifiers;
        item.cmdGlyph = equivalent.glyph;
        item.cmdVirtualKey = equivalent.virtualKey;
    }
    if (!item.title.empty() && matters(recorded, item, family))
        item.enabled = recorded.at("enabled").get<bool>() && recorded.at("sensitive").get<bool>();
    return item;
}

std::vector<RawMenuItem> itemsOf(const json& list, atspi::ToolkitFamily family, int depth, int deepest) {
    std::vector<RawMenuItem> items;
    for (const json& recorded : list) {
        const bool isLayer = recorded.at("role") == "popup menu" && recorded.at("name") == "";
        if (isLayer)
            std::ranges::move(
                itemsOf(recorded.at("children"), family, depth, deepest), std::back_inserter(items));
        else if (RawMenuItem item = itemOf(recorded, family, depth, deepest);
                 !isHidden(recorded, item, family))
            items.push_back(std::move(item));
    }
    return items;
}

} // namespace

std::vector<RawMenuItem> plainReading(const std::string& file, int depth) {
    std::ifstream stream(file);
    const json recording = json::parse(stream);
    const auto family = atspi::toolkitFamily(recording.at("toolkit").get<std::string>());
    return itemsOf(recording.at("menuBar"), family, 0, depth);
}

std::string outlineOf(const std::vector<RawMenuItem>& items, int depth) {
    std::string text;
    for (const RawMenuItem& item : items) {
        const auto shortcut = item.shortcut();
        text += std::string(static_cast<std::size_t>(depth) * 2, ' ') + item.title;
        text += (shortcut ? " " + shortcut->display() : "") + (item.enabled ? "\n" : " (disabled)\n");
        text += outlineOf(item.children, depth + 1);
    }
    return text;
}

std::vector<std::string> recordingFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(QUILLON_RECORDINGS))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

} // namespace quillon
