#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace quillon {

/// What another `quillon` of the same session, or a script, may ask of the running one.
struct InstanceRequests {
    std::function<void()> activate; ///< bring up the menu or a window
    std::function<void()> showOverlay;
    std::function<void()> showSample;
    std::function<void()> quit;
    std::function<bool()> isWatching;     ///< holding the trigger key is noticed
    std::function<void()> measureStalls;  ///< begin to measure how long the main thread is ever busy
    std::function<double()> longestStall; ///< in milliseconds, since measureStalls
};

/// Keeps this the only running instance of the session, by its well-known name on the session bus, and passes
/// on what other processes ask of it.
class InstanceService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.quillon.Quillon1")

  public:
    enum class Claim {
        first,        ///< this process is the instance now
        alreadyTaken, ///< another process is
        noSessionBus  ///< there is no bus to tell; several instances are possible
    };

    explicit InstanceService(InstanceRequests requests) : m_requests(std::move(requests)) {}

    Claim claim();

  public Q_SLOTS:
    Q_SCRIPTABLE void Activate() { call(m_requests.activate); }
    Q_SCRIPTABLE void ShowOverlay() { call(m_requests.showOverlay); }
    Q_SCRIPTABLE void ShowSample() { call(m_requests.showSample); }
    Q_SCRIPTABLE void Quit() { call(m_requests.quit); }
    Q_SCRIPTABLE bool IsWatching() { return m_requests.isWatching && m_requests.isWatching(); }
    Q_SCRIPTABLE void MeasureStalls() { call(m_requests.measureStalls); }
    Q_SCRIPTABLE double LongestStallMilliseconds() {
        return m_requests.longestStall ? m_requests.longestStall() : 0;
    }

  private:
    static void call(const std::function<void()>& request) {
        if (request)
            request();
    }

    InstanceRequests m_requests;
};

/// Asks the running instance for one of its operations, by name ("ShowOverlay"), and waits at most two
/// seconds for it. False when none is running or it did not answer.
bool askRunningInstance(const QString& operation);

/// Whether an instance is running; false without a session bus.
bool instanceIsRunning();

} // namespace quillon
