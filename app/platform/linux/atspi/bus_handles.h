#pragma once

#include <memory>

#include <systemd/sd-bus.h>

/// Owning handles for what sd-bus counts references of.
namespace quillon::atspi {

struct UnrefMessage {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using BusMessage = std::unique_ptr<sd_bus_message, UnrefMessage>;

struct UnrefSlot {
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};
/// A call in flight, or whatever else waits for messages; letting it go cancels that.
using BusSlot = std::unique_ptr<sd_bus_slot, UnrefSlot>;

} // namespace quillon::atspi
