#pragma once

#include <quillon/kit/menu/menu_parser.h>

#include <chrono>
#include <cstddef>

namespace quillon::atspi {

/// How much one reading may cost. Other applications are not trusted: they hang, die, and answer with more
/// than anyone can use.
struct ReadLimits {
    /// The longest wait for the answer of one request.
    std::chrono::milliseconds call{1000};
    /// The longest time in which nothing at all arrives; then the other side counts as stopped.
    std::chrono::milliseconds silence{1000};
    /// The longest time for everything together.
    std::chrono::milliseconds whole{5000};
    /// Requests that wait for an answer at the same time. Fewer while the application answers slowly.
    std::size_t inFlight = 64;
    /// Menu items; once so many are read no further child list is opened.
    std::size_t items = 4000;
    /// Menu items in all, with those of the lists that were open when `items` was reached.
    std::size_t itemsAtMost = 16000;
    /// The deepest items whose children are read; top-level menus are at depth 0.
    int depth = MenuParser::defaultMaxDepth;
    /// Bytes of a title or a name; longer ones are cut between characters. Room for a file's whole path.
    std::size_t titleBytes = 4096;
    /// Bytes of a key binding; a longer one is none.
    std::size_t bindingBytes = 1024;
};

} // namespace quillon::atspi
