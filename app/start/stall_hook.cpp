#include "stall_hook.h"

#include <quillon/app/platform/linux/base/bus_registration.h>
#include <quillon/app/platform/qt/stall_meter.h>

#include <chrono>

namespace quillon {

namespace {

class StallHook final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.quillon.StallMeter1")

  public Q_SLOTS:
    /// Begins to measure, from zero.
    Q_SCRIPTABLE void Start() { m_meter.start(); }
    Q_SCRIPTABLE double LongestMilliseconds() {
        return std::chrono::duration<double, std::milli>(m_meter.longest()).count();
    }

  private:
    StallMeter m_meter;
    BusObject m_object{
        QDBusConnection::sessionBus(), QStringLiteral("/app/quillon/StallMeter"), *this,
        QDBusConnection::ExportScriptableSlots};
};

} // namespace

std::unique_ptr<QObject> stallHook() {
    return std::make_unique<StallHook>();
}

} // namespace quillon

#include "stall_hook.moc"
