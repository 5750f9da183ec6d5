#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <unordered_set>

namespace quillon::atspi {

/// What an application tells of all objects below one at once, as lists of those that fulfil a condition
/// (`org.a11y.atspi.Collection`): three requests that replace two for every item. GTK 2 and 3 answer them,
/// looking through the menus alone; Qt does not know them.
struct MenuOutline {
    /// Every object, at any depth, with its place in the order in which they are told: each before what is
    /// below it, and that before its next sibling. Places count from 0.
    std::unordered_map<ObjectRef, std::size_t> all;
    std::unordered_set<ObjectRef> menus;  ///< those with the role of a menu: only they have children
    std::unordered_set<ObjectRef> usable; ///< those that are enabled and sensitive

    /// Asks for the outline of what is below `menuBar` and waits; absent when the application has none to
    /// give, has more objects than the limits allow, or takes so long that asking item by item is quicker.
    static std::optional<MenuOutline> ask(AccessibilityCalls& calls, const ObjectRef& menuBar);
};

} // namespace quillon::atspi
