#pragma once

#include "object_ref.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct sd_bus_message;

/// Values out of messages. Each reads at the message's current position and is absent when something else is
/// there.
namespace quillon::atspi {

/// A text, at most `limit` bytes of it. What is no UTF-8 reads as U+FFFD: neither the bus nor its library
/// lets broken bytes through.
std::optional<std::string> readText(sd_bus_message* message, std::size_t limit);
/// The text inside of a variant.
std::optional<std::string> readVariantText(sd_bus_message* message, std::size_t limit);
std::optional<std::uint32_t> readNumber(sd_bus_message* message);
std::optional<bool> readVariantFlag(sd_bus_message* message);
/// A rectangle, "(iiii)".
std::optional<Extents> readExtents(sd_bus_message* message);
/// An object, "(so)". May be one that stands for none.
std::optional<ObjectRef> readObject(sd_bus_message* message);
/// An object; absent also for one that stands for none.
std::optional<ObjectRef> readRealObject(sd_bus_message* message);
/// An array of objects, "a(so)", without those that stand for none; at most `limit` of them.
std::optional<std::vector<ObjectRef>> readObjects(sd_bus_message* message, std::size_t limit);
/// The words of a state set, "au".
std::optional<StateSet> readStates(sd_bus_message* message);

} // namespace quillon::atspi
