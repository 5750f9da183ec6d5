#pragma once

#include <QDBusConnection>

#include <chrono>
#include <stop_token>
#include <string>

namespace quillon {

/// What became of an attempt to reach a message bus.
enum class BusState {
    answers,
    silent, ///< it takes connections and does not answer them
    absent,
};

/// What a message bus said.
struct BusAnswer {
    BusState state = BusState::absent;
    bool isOwned = false; ///< somebody has the name that was asked for
};

/// Signs in at the bus at `address` over a connection of its own, and asks whether `name` has an owner. Waits
/// at most `limit`, and gives up soon when `stop` is requested: silent.
BusAnswer askBus(
    const std::string& address, const std::string& name, std::chrono::milliseconds limit,
    const std::stop_token& stop = {});

/// Where this process's session bus listens; "" when the environment does not say.
std::string sessionBusAddress();

/// The session bus, reached within bounds. Qt's own way to it waits without end for a bus that takes
/// connections and does not answer, so nobody may ask Qt for its session bus but through this.
class SessionBus {
  public:
    static constexpr std::chrono::milliseconds defaultLimit{2000};

    /// Tries to reach it, for at most `limit`.
    explicit SessionBus(std::chrono::milliseconds limit = defaultLimit);

    /// What was found when this object was made.
    const BusAnswer& found() const { return m_found; }
    bool answers() const { return m_found.state == BusState::answers; }
    const std::string& address() const { return m_address; }
    /// Qt's session bus; one that is not connected when the bus did not answer. Not before there is a
    /// QCoreApplication.
    QDBusConnection connection() const;

    /// Takes a bus that does not answer out of the environment, where Qt itself would find it and wait for
    /// it.
    void hideSilent() const;
    /// Undoes that, for a program that is started in this one's place.
    void unhide() const;

  private:
    std::string m_address;
    BusAnswer m_found;
};

} // namespace quillon
