#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace quillon::atspi {

/// What an application tells of all objects below one at once, as lists of those that fulfil a condition
/// (`org.a11y.atspi.Collection`): a handful of requests that replace two for every item. GTK 2 and 3 answer
/// them, looking through the menus alone; Qt does not know them.
struct MenuOutline {
    /// Every object, at any depth, with its place in the order in which they are told: each before what is
    /// below it, and that before its next sibling. Places count from 0.
    std::unordered_map<ObjectRef, std::size_t> all;
    std::unordered_set<ObjectRef> menus;  ///< those with the role of a menu: only they have children
    std::unordered_set<ObjectRef> usable; ///< those that are enabled and sensitive
    /// Those that the application hides. What is below a hidden menu need not be hidden itself.
    std::unordered_set<ObjectRef> hidden;

    /// Asks for the outline of what is below `menuBar` and waits; absent when the application has none to
    /// give, has more objects than the limits allow, or takes so long that asking item by item is quicker.
    /// Of a toolkit whose objects do not tell whether they are hidden, none is.
    static std::optional<MenuOutline>
    ask(AccessibilityCalls& calls, const ObjectRef& menuBar, ToolkitFamily family);
};

} // namespace quillon::atspi
