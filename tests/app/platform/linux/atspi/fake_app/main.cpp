// An application on the accessibility bus that has menus and nothing else: recorded or made-up ones, answered
// as their toolkit answers, or as badly as the command line asks for. Prints "ready" and its bus name on
// standard output when it can be found.

#include "objects.h"
#include "options.h"
#include "service.h"

#include <cstdio>
#include <string>

#include <systemd/sd-bus.h>

namespace {

std::string accessibilityBus() {
    sd_bus* session = nullptr;
    if (sd_bus_open_user(&session) < 0)
        return "";
    sd_bus_message* reply = nullptr;
    const char* address = "";
    if (sd_bus_call_method(
            session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &reply, "")
        >= 0)
        sd_bus_message_read(reply, "s", &address);
    std::string copy = address;
    sd_bus_message_unref(reply);
    sd_bus_flush_close_unref(session);
    return copy;
}

sd_bus* connectTo(const std::string& address) {
    sd_bus* bus = nullptr;
    sd_bus_new(&bus);
    const bool isOpen = sd_bus_set_address(bus, address.c_str()) >= 0 && sd_bus_set_bus_client(bus, 1) >= 0
                        && sd_bus_start(bus) >= 0;
    return isOpen ? bus : sd_bus_unref(bus);
}

} // namespace

int main(int argc, char** argv) {
    using namespace quillon::fake_app;
    const auto options = parseOptions(argc, argv);
    if (!options)
        return 2;
    auto objects = Objects::make(*options);
    if (!objects) {
        std::fprintf(stderr, "quillon-fake-app: %s cannot be read\n", options->recording.c_str());
        return 2;
    }
    sd_bus* bus = connectTo(accessibilityBus());
    if (!bus) {
        std::fprintf(stderr, "quillon-fake-app: no accessibility bus\n");
        return 1;
    }
    Service service(bus, std::move(*objects), *options);
    if (!service.embed()) {
        std::fprintf(stderr, "quillon-fake-app: the registry does not answer\n");
        return 1;
    }
    std::printf("ready %s\n", service.busName());
    std::fflush(stdout);
    service.run();
    return 0;
}
