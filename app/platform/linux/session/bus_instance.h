#pragma once

#include "application_interface.h"
#include "instance_lock.h"
#include "session_bus.h"

#include <quillon/app/platform/linux/base/bus_registration.h>
#include <quillon/app/ports/instance.h>
#include <quillon/kit/base/subscription.h>

#include <QObject>

#include <optional>
#include <thread>

namespace quillon {

/// Keeps this the only running instance: by its name on the session bus, where others can call it, and by a
/// lock for the time in which there is no bus to tell. Looks for a bus that was lost until it is back.
class BusInstance final : public QObject, public Instance {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.quillon.Quillon1")

  public:
    static constexpr std::chrono::milliseconds defaultRetryInterval{2000};

    /// `bus` outlives it.
    explicit BusInstance(
        const SessionBus& bus, const std::filesystem::path& lockFile = instanceLockFile(),
        std::chrono::milliseconds retryInterval = defaultRetryInterval);
    ~BusInstance() override;

    Claim claim(InstanceRequests requests) override;
    Subscription onReturn(std::function<void(Return)> callback) override {
        return m_returned.subscribe(std::move(callback));
    }

  public Q_SLOTS:
    Q_SCRIPTABLE void Activate() { call(m_requests.activate); }
    Q_SCRIPTABLE void ShowOverlay() { call(m_requests.showOverlay); }
    Q_SCRIPTABLE void ShowSample() { call(m_requests.showSample); }
    /// By its identifier; false when there is no such window. The token may be "".
    Q_SCRIPTABLE bool OpenWindow(const QString& identifier, const QString& activationToken);
    /// The practice window for an application, by its bundle identifier; the same token.
    Q_SCRIPTABLE bool OpenPractice(const QString& bundleID, const QString& activationToken);
    Q_SCRIPTABLE void Quit() { call(m_requests.quit); }
    Q_SCRIPTABLE bool IsWatching() { return watching().holds; }
    Q_SCRIPTABLE bool IsWatchingClicks() { return watching().clicks; }
    Q_SCRIPTABLE bool IsWatchingTyping() { return watching().typing; }
    Q_SCRIPTABLE bool IsInTray() { return m_requests.isInTray && m_requests.isInTray(); }

  private Q_SLOTS:
    void lookForBus();

  private:
    static void call(const std::function<void()>& request) {
        if (request)
            request();
    }
    void expect(const QString& activationToken) const;
    Watching watching() const { return m_requests.watching ? m_requests.watching() : Watching{}; }
    Claim claimOnBus();

    const SessionBus& m_bus;
    std::chrono::milliseconds m_retryInterval;
    InstanceRequests m_requests;
    ApplicationInterface* m_application = new ApplicationInterface(m_requests, m_bus, this);
    InstanceLock m_lock;
    std::optional<BusObject> m_object;
    std::optional<BusName> m_name;
    Event<Return> m_returned;
    std::jthread m_search; ///< ends first
};

} // namespace quillon
