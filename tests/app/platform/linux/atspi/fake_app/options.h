#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon::fake_app {

/// What the command line of the fake application says.
struct Options {
    std::string recording;       ///< file with recorded menus; "" for made-up ones
    std::size_t items = 100;     ///< how many items to make up
    bool isFlat = false;         ///< all made-up items in one menu
    std::string toolkit = "gtk"; ///< of made-up menus
    std::string name = "fake";   ///< of the application
    std::vector<std::string>
        windows; ///< titles of the windows that have the menu bar; "Fake" when none is given
    std::vector<std::string> dialogs; ///< titles of windows without a menu bar, which come first
    bool hasImaginedBar = false;      ///< a window has a second menu bar, without room on the screen
    bool hasMenuBar = true;           ///< otherwise there is only a window without one
    /// The names of the menus that are open and of the item that is pointed at; empty while none is open.
    std::vector<std::string> pointedAt;
    std::string log; ///< file that gets a line for each call: member, path, interface

    // Misbehaviour. Calls are counted from the first one that reaches a menu.
    std::optional<std::size_t> stopAfter;   ///< stops the process (SIGSTOP) before answering so many calls
    std::optional<std::size_t> exitAfter;   ///< ends the process before answering so many calls
    std::optional<std::size_t> errorsAfter; ///< answers with errors from then on
    std::string mutePath;                   ///< calls to this object are never answered
    std::string muteMember;                 ///< and of those, only this one when it is not empty
    std::string refusedName;                ///< objects of this name answer with an error when asked for it
    int delay = 0;                          ///< milliseconds before each answer
    bool hasCycle = false;                  ///< the first menu holds itself and the menu bar
    bool hasStaleRole = false;              ///< a submenu claims to be a plain item
    std::string title;                      ///< the first item's; "" for a usual one
    std::size_t titleBytes = 0;             ///< length of the first item's title; 0 for a usual one
    bool hasBrokenText = false;             ///< the first item's title is no UTF-8
};

/// Absent, with a message on standard error, when the arguments make no sense.
std::optional<Options> parseOptions(int argc, char** argv);

} // namespace quillon::fake_app
