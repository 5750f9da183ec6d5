#include "bus_connection.h"

#include <systemd/sd-bus.h>

namespace quillon::atspi {

BusConnection BusConnection::session() {
    BusConnection connection;
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) >= 0)
        connection.m_bus.reset(bus);
    return connection;
}

BusConnection BusConnection::at(const std::string& address) {
    BusConnection connection;
    sd_bus* bus = nullptr;
    if (sd_bus_new(&bus) < 0)
        return connection;
    connection.m_bus.reset(bus);
    const bool started = sd_bus_set_address(bus, address.c_str()) >= 0 && sd_bus_set_bus_client(bus, 1) >= 0
                         && sd_bus_start(bus) >= 0;
    if (!started)
        connection.m_bus.reset();
    return connection;
}

void BusConnection::Close::operator()(sd_bus* bus) const {
    sd_bus_close(bus); // without flushing: nobody waits for what is still unsent
    sd_bus_unref(bus);
}

} // namespace quillon::atspi
