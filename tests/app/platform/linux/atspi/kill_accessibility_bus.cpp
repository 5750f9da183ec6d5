#include "kill_accessibility_bus.h"

#include <csignal>

#include <sys/socket.h>
#include <systemd/sd-bus.h>

namespace quillon {

void killAccessibilityBus() {
    sd_bus* session = nullptr;
    sd_bus* bus = nullptr;
    sd_bus_message* reply = nullptr;
    const char* address = nullptr;
    sd_bus_open_user(&session);
    sd_bus_call_method(
        session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &reply, "");
    sd_bus_message_read(reply, "s", &address);
    sd_bus_new(&bus);
    sd_bus_set_address(bus, address);
    sd_bus_start(bus);
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(sd_bus_get_fd(bus), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.pid > 1)
        kill(peer.pid, SIGKILL);
    sd_bus_close_unref(bus);
    sd_bus_message_unref(reply);
    sd_bus_close_unref(session);
}

} // namespace quillon
