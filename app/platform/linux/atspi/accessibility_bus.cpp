#include "accessibility_bus.h"

#include "bus_values.h"
#include "call_pipeline.h"

namespace quillon::atspi {
namespace {

const ObjectRef launcher{"org.a11y.Bus", "/org/a11y/bus"};
const ObjectRef bus{"org.freedesktop.DBus", "/org/freedesktop/DBus"};
constexpr std::size_t longestAddress = 4096;

void askAddress(CallPipeline& session, std::optional<std::string>& address) {
    session.ask(
        {launcher, "org.a11y.Bus", "GetAddress", {}}, [&address](Answer answer, sd_bus_message* message) {
            if (answer == Answer::value)
                address = readText(message, longestAddress);
            if (address && address->empty())
                address.reset();
        });
}

/// Any question that the bus itself answers.
void askPresence(CallPipeline& pipeline, bool& isPresent) {
    pipeline.ask({bus, "org.freedesktop.DBus", "GetId", {}}, [&isPresent](Answer answer, sd_bus_message*) {
        isPresent = answer == Answer::value;
    });
}

} // namespace

std::optional<std::string> accessibilityBusAddress(
    const ReadLimits& limits, std::chrono::steady_clock::time_point deadline, const std::stop_token& stop) {
    CallPipeline session(BusConnection::session(), limits, deadline, stop);
    std::optional<std::string> address;
    askAddress(session, address);
    session.run();
    return address;
}

AccessibilityBusState probeAccessibilityBus(const ReadLimits& limits) {
    AccessibilityBusState state;
    const auto deadline = CallPipeline::Clock::now() + limits.whole;
    CallPipeline session(BusConnection::session(), limits, deadline, {});
    std::optional<std::string> address;
    askPresence(session, state.hasSessionBus);
    askAddress(session, address);
    session.ask(
        {launcher, "org.freedesktop.DBus.Properties", "Get", {"org.a11y.Status", "IsEnabled"}},
        [&state](Answer answer, sd_bus_message* message) {
            if (answer == Answer::value)
                state.isEnabled = readVariantFlag(message);
        });
    session.run();
    if (address) {
        CallPipeline accessibility(BusConnection::at(*address), limits, deadline, {});
        askPresence(accessibility, state.hasAccessibilityBus);
        accessibility.run();
    }
    return state;
}

} // namespace quillon::atspi
