#pragma once

#include "accessibility_calls.h"
#include "object_ref.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>
#include <quillon/app/ports/running_app.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillon::atspi {

/// A top-level window as its application tells it.
struct BusWindow {
    ObjectRef object;
    std::string title;
    StateSet states;
    ToolkitFamily toolkit = ToolkitFamily::other;
};

/// The windows of the applications, each application's in its order. Waits; what is not answered is missing.
std::vector<BusWindow> windowsOf(AccessibilityCalls& calls, std::span<const ObjectRef> applicationRoots);

/// Sorts windows by whose menus the user means: those titled like `wanted`, in the order of `wanted`; then
/// the active one; then those that show; then the rest. Equal ones keep their order.
void sortBestFirst(std::vector<BusWindow>& windows, std::span<const AppWindow> wanted);

/// Whether a window is titled like one of `wanted`. No untitled window is.
bool isWanted(const BusWindow& window, std::span<const AppWindow> wanted);

} // namespace quillon::atspi
