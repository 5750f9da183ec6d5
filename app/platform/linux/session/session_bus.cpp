#include "session_bus.h"

#include "instance_name.h"
#include "session_kind.h"

#include <QByteArray>
#include <QDBusMessage>
#include <QUrl>

#include <systemd/sd-bus.h>

#include <algorithm>
#include <memory>

namespace quillon {

namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";
/// An address of no kind that there is: whoever tries it fails at once.
constexpr const char* noAddress = "none:";
constexpr std::chrono::milliseconds stopInterval{50};

using Clock = std::chrono::steady_clock;

struct CloseBus {
    void operator()(sd_bus* bus) const {
        sd_bus_close(bus);
        sd_bus_unref(bus);
    }
};
using Bus = std::unique_ptr<sd_bus, CloseBus>;

struct DropMessage {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, DropMessage>;

/// Null when nobody listens there.
Bus open(const std::string& address) {
    sd_bus* raw = nullptr;
    if (address.empty() || sd_bus_new(&raw) < 0)
        return nullptr;
    Bus bus(raw);
    const bool isStarted = sd_bus_set_address(raw, address.c_str()) >= 0 && sd_bus_set_bus_client(raw, 1) >= 0
                           && sd_bus_start(raw) >= 0;
    return isStarted ? std::move(bus) : nullptr;
}

std::uint64_t microsecondsUntil(Clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now());
    return static_cast<std::uint64_t>(std::max<std::int64_t>(0, left.count()));
}

BusState signIn(sd_bus* bus, Clock::time_point deadline, const std::stop_token& stop) {
    while (Clock::now() < deadline && !stop.stop_requested()) {
        const int processed = sd_bus_process(bus, nullptr);
        if (processed < 0)
            return BusState::absent;
        if (sd_bus_is_ready(bus) > 0)
            return BusState::answers;
        if (processed == 0
            && sd_bus_wait(bus, microsecondsUntil(std::min(deadline, Clock::now() + stopInterval))) < 0)
            return BusState::absent;
    }
    return BusState::silent;
}

/// Absent when the bus does not answer any more.
std::optional<bool> hasOwner(sd_bus* bus, const std::string& name, Clock::time_point deadline) {
    sd_bus_message* raw = nullptr;
    if (sd_bus_message_new_method_call(
            bus, &raw, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "NameHasOwner")
        < 0)
        return std::nullopt;
    const Message question(raw);
    sd_bus_message* rawAnswer = nullptr;
    if (sd_bus_message_append(question.get(), "s", name.c_str()) < 0
        || sd_bus_call(
               bus, question.get(), std::max<std::uint64_t>(1, microsecondsUntil(deadline)), nullptr,
               &rawAnswer)
               < 0)
        return std::nullopt;
    const Message answer(rawAnswer);
    int isOwned = 0;
    if (sd_bus_message_read(answer.get(), "b", &isOwned) < 0)
        return std::nullopt;
    return isOwned != 0;
}

} // namespace

BusAnswer askBus(
    const std::string& address, const std::string& name, std::chrono::milliseconds limit,
    const std::stop_token& stop) {
    const auto deadline = Clock::now() + limit;
    const Bus bus = open(address);
    if (!bus)
        return {BusState::absent};
    const BusState state = signIn(bus.get(), deadline, stop);
    if (state != BusState::answers)
        return {state};
    const auto isOwned = hasOwner(bus.get(), name, deadline);
    return isOwned ? BusAnswer{BusState::answers, *isOwned} : BusAnswer{BusState::silent};
}

std::string sessionBusAddress() {
    if (std::string address = processEnvironment(addressVariable); !address.empty())
        return address;
    const std::string folder = processEnvironment("XDG_RUNTIME_DIR");
    if (folder.empty())
        return "";
    const QByteArray path = QUrl::toPercentEncoding(QString::fromStdString(folder), "/", "~");
    return "unix:path=" + path.toStdString() + "/bus";
}

SessionBus::SessionBus(std::chrono::milliseconds limit)
    : m_address(sessionBusAddress()), m_found(askBus(m_address, instanceName, limit)) {}

QDBusConnection SessionBus::connection() const {
    // Qt's table of such types has to be there before the thread of its buses, for the table to outlive the
    // thread: what arrives while the process ends would be warned about otherwise.
    qRegisterMetaType<QDBusMessage>();
    // The name of no connection: the result is one that is not connected.
    return answers() ? QDBusConnection::sessionBus() : QDBusConnection(QStringLiteral("none"));
}

void SessionBus::hideSilent() const {
    if (m_found.state == BusState::silent)
        qputenv(addressVariable, noAddress);
}

void SessionBus::unhide() const {
    qputenv(addressVariable, QByteArray::fromStdString(m_address));
}

} // namespace quillon
