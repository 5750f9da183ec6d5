#include "sample_menus.h"

#include "menu_parser.h"

#include <initializer_list>
#include <utility>

namespace quillon::SampleMenus {

namespace {

// Accessibility modifier masks: command is there unless said otherwise.
constexpr std::int64_t withCommand = 0;
constexpr std::int64_t withShift = 1;
constexpr std::int64_t withOption = 2;
constexpr std::int64_t withOptionShift = 3;
constexpr std::int64_t withControl = 4;
constexpr std::int64_t bare = 8;

RawMenuItem plain(std::string title) {
    RawMenuItem item;
    item.title = std::move(title);
    return item;
}

RawMenuItem key(std::string title, std::string character, std::int64_t mask) {
    RawMenuItem item = plain(std::move(title));
    item.cmdChar = std::move(character);
    item.cmdModifiers = mask;
    return item;
}

RawMenuItem glyphKey(std::string title, std::int64_t glyph) {
    RawMenuItem item = plain(std::move(title));
    item.cmdModifiers = bare;
    item.cmdGlyph = glyph;
    return item;
}

RawMenuItem menu(std::string title, std::initializer_list<RawMenuItem> children) {
    RawMenuItem item = plain(std::move(title));
    item.children = children;
    return item;
}

const RawMenuItem& separator() {
    static const RawMenuItem item;
    return item;
}

RawMenuItem appleMenu() {
    return menu("Apple", {plain("About This Mac"), key("Force Quit…", "\x1b", withOption)});
}

RawMenuItem sketchpadMenu() {
    return menu(
        "Sketchpad", {plain("About Sketchpad"), separator(), key("Settings…", ",", withCommand), separator(),
                      key("Hide Sketchpad", "H", withCommand), key("Hide Others", "H", withOption),
                      key("Quit Sketchpad", "Q", withCommand)});
}

RawMenuItem fileMenu() {
    return menu(
        "File", {key("New Drawing", "N", withCommand), key("New from Template…", "N", withShift),
                 key("Open…", "O", withCommand),
                 menu("Open Recent", {plain("Harbor at Dusk.sketch"), plain("Clear Menu")}), separator(),
                 key("Close", "W", withCommand), key("Save", "S", withCommand),
                 key("Duplicate", "S", withShift), plain("Rename…"), key("Export…", "E", withShift),
                 separator(), key("Page Setup…", "P", withShift), key("Print…", "P", withCommand)});
}

RawMenuItem editMenu() {
    return menu(
        "Edit", {key("Undo", "Z", withCommand), key("Redo", "Z", withShift), separator(),
                 key("Cut", "X", withCommand), key("Copy", "C", withCommand), key("Paste", "V", withCommand),
                 key("Paste in Place", "V", withOptionShift), glyphKey("Delete", 23),
                 key("Select All", "A", withCommand), key("Deselect All", "A", withShift), separator(),
                 menu(
                     "Find", {key("Find…", "F", withCommand), key("Find Next", "G", withCommand),
                              key("Find Previous", "G", withShift)}),
                 key("Emoji & Symbols", " ", withControl)});
}

RawMenuItem objectMenu() {
    return menu(
        "Object",
        {key("Group", "G", withOption), key("Ungroup", "G", withOptionShift), separator(),
         menu(
             "Arrange", {key("Bring to Front", "]", withShift), key("Bring Forward", "]", withCommand),
                         key("Send Backward", "[", withCommand), key("Send to Back", "[", withShift)}),
         key("Lock", "L", withCommand), key("Unlock All", "L", withOption),
         key("Flip Horizontal", "H", withShift), glyphKey("Nudge Left", 100),
         key("Rotate 90°", "R", withOption)});
}

RawMenuItem formatMenu() {
    return menu(
        "Format", {menu(
                       "Font", {key("Show Fonts", "T", withCommand), key("Bold", "B", withCommand),
                                key("Italic", "I", withCommand), key("Underline", "U", withCommand),
                                key("Bigger", "+", withCommand), key("Smaller", "-", withCommand)}),
                   menu(
                       "Text", {key("Align Left", "{", withCommand), key("Center", "|", withCommand),
                                key("Align Right", "}", withCommand)}),
                   key("Copy Style", "C", withOption), key("Paste Style", "V", withOption)});
}

RawMenuItem viewMenu() {
    return menu(
        "View", {key("Zoom In", "=", withCommand), key("Zoom Out", "-", withCommand),
                 key("Actual Size", "0", withCommand), key("Zoom to Fit", "1", withCommand), separator(),
                 key("Show Rulers", "R", withCommand), key("Show Grid", "'", withCommand),
                 key("Show Layers", "L", withOption), key("Hide Toolbar", "T", withOption),
                 key("Enter Full Screen", "F", withControl)});
}

RawMenuItem windowMenu() {
    return menu("Window", {key("Minimize", "M", withCommand), plain("Zoom"), plain("Bring All to Front")});
}

RawMenuItem helpMenu() {
    return menu("Help", {key("Sketchpad Help", "?", withCommand)});
}

} // namespace

const std::vector<RawMenuItem>& menuBar() {
    static const std::vector<RawMenuItem> bar{appleMenu(), sketchpadMenu(), fileMenu(),
                                              editMenu(),  objectMenu(),    formatMenu(),
                                              viewMenu(),  windowMenu(),    helpMenu()};
    return bar;
}

const AppSheet& sheet() {
    static const AppSheet made{
        std::string(bundleID), std::string(appName),
        MenuParser::entries(menuBar(), MenuParser::defaultMaxDepth),
        Instant(std::chrono::seconds(1'791'600'000))};
    return made;
}

} // namespace quillon::SampleMenus
