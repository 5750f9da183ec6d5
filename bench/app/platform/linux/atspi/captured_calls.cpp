#include "captured_calls.h"

#include <systemd/sd-bus.h>

#include <string_view>

namespace quillon {
namespace {

constexpr std::size_t inFlight = 64;
constexpr std::uint64_t patience = 1000000; // microseconds

struct Close {
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
};
using Bus = std::unique_ptr<sd_bus, Close>;

Bus connect(const std::string& address, bool asMonitor) {
    sd_bus* bus = nullptr;
    sd_bus_new(&bus);
    sd_bus_set_address(bus, address.c_str());
    sd_bus_set_bus_client(bus, 1);
    sd_bus_set_monitor(bus, asMonitor);
    sd_bus_start(bus);
    return Bus(bus);
}

bool belongsTo(sd_bus* bus, const char* name, long pid) {
    sd_bus_message* reply = nullptr;
    std::uint32_t owner = 0;
    const int called = sd_bus_call_method(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "GetConnectionUnixProcessID", nullptr, &reply, "s", name);
    if (called >= 0)
        sd_bus_message_read(reply, "u", &owner);
    sd_bus_message_unref(reply);
    return owner == pid;
}

/// The next message that the monitor sees within a moment; nullptr when there is none.
sd_bus_message* next(sd_bus* monitor) {
    for (;;) {
        sd_bus_message* message = nullptr;
        const int progress = sd_bus_process(monitor, &message);
        if (progress < 0)
            return nullptr;
        if (message)
            return message;
        if (progress == 0 && sd_bus_wait(monitor, patience / 4) <= 0)
            return nullptr;
    }
}

struct Progress {
    std::size_t waiting = 0;
};

int answered(sd_bus_message*, void* progress, sd_bus_error*) {
    --static_cast<Progress*>(progress)->waiting;
    return 1;
}

} // namespace

void CapturedCalls::Unref::operator()(sd_bus_message* message) const {
    sd_bus_message_unref(message);
}

CapturedCalls CapturedCalls::during(const std::string& address, long pid, const std::function<void()>& work) {
    const Bus monitor = connect(address, true);
    const Bus asker = connect(address, false);
    sd_bus_call_method(
        monitor.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.Monitoring",
        "BecomeMonitor", nullptr, nullptr, "asu", 0, 0);
    work();
    CapturedCalls captured;
    std::string known; // the application's connection, once it was seen
    while (sd_bus_message* message = next(monitor.get())) {
        std::unique_ptr<sd_bus_message, Unref> call(message);
        std::uint8_t type = 0;
        sd_bus_message_get_type(message, &type);
        const char* destination = sd_bus_message_get_destination(message);
        if (type != SD_BUS_MESSAGE_METHOD_CALL || !destination || destination[0] != ':')
            continue;
        if (known.empty() && belongsTo(asker.get(), destination, pid))
            known = destination;
        if (destination == known)
            captured.m_calls.push_back(std::move(call));
    }
    return captured;
}

std::chrono::duration<double, std::milli> CapturedCalls::repeat(const std::string& address) const {
    const Bus bus = connect(address, false);
    std::vector<std::unique_ptr<sd_bus_message, Unref>> copies;
    for (const auto& call : m_calls) {
        sd_bus_message* copy = nullptr;
        sd_bus_message_new_method_call(
            bus.get(), &copy, sd_bus_message_get_destination(call.get()), sd_bus_message_get_path(call.get()),
            sd_bus_message_get_interface(call.get()), sd_bus_message_get_member(call.get()));
        sd_bus_message_rewind(call.get(), 1);
        sd_bus_message_copy(copy, call.get(), 1);
        copies.emplace_back(copy);
    }
    const auto start = std::chrono::steady_clock::now();
    Progress progress;
    for (std::size_t sent = 0; sent < copies.size() || progress.waiting > 0;) {
        for (; sent < copies.size() && progress.waiting < inFlight; ++sent, ++progress.waiting)
            sd_bus_call_async(bus.get(), nullptr, copies[sent].get(), answered, &progress, patience);
        if (sd_bus_process(bus.get(), nullptr) == 0)
            sd_bus_wait(bus.get(), patience);
    }
    return std::chrono::steady_clock::now() - start;
}

} // namespace quillon
