#pragma once

#include <memory>
#include <string>

struct sd_bus;

namespace quillon::atspi {

/// A connection to a message bus of its own. Opening it does not wait: signing in happens while calls are
/// processed. Of one thread.
class BusConnection {
  public:
    /// The user's session bus.
    static BusConnection session();
    /// The bus at a D-Bus address.
    static BusConnection at(const std::string& address);

    /// Whether the bus could be reached. A connection may still break later.
    explicit operator bool() const { return m_bus != nullptr; }
    sd_bus* get() const { return m_bus.get(); }

  private:
    struct Close {
        void operator()(sd_bus* bus) const;
    };
    std::unique_ptr<sd_bus, Close> m_bus;
};

} // namespace quillon::atspi
