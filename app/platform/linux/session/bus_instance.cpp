#include "bus_instance.h"

#include "instance_name.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace quillon {

namespace {

constexpr int nameMilliseconds = 2000;
constexpr std::chrono::milliseconds endLimit{2000};

/// False when `stop` was requested before.
bool pauseFor(std::chrono::milliseconds time, const std::stop_token& stop) {
    std::mutex mutex;
    std::condition_variable_any never;
    std::unique_lock lock(mutex);
    never.wait_for(lock, stop, time, [] { return false; });
    return !stop.stop_requested();
}

} // namespace

BusInstance::BusInstance(
    const SessionBus& bus, const std::filesystem::path& lockFile, std::chrono::milliseconds retryInterval)
    : m_bus(bus), m_retryInterval(retryInterval), m_lock(lockFile) {}

BusInstance::~BusInstance() = default;

Instance::Claim BusInstance::claim(InstanceRequests requests) {
    m_requests = std::move(requests);
    if (m_bus.answers())
        return claimOnBus();
    if (!m_lock.take())
        return Claim::unreachable;
    lookForBus();
    return Claim::noSession;
}

Instance::Claim BusInstance::claimOnBus() {
    QDBusConnection bus = m_bus.connection();
    // Before anything that takes time, in which the bus may be lost.
    bus.connect(
        QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
        QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
        SLOT(lookForBus()));
    // The object first: whoever sees the name can call it.
    m_object.emplace(
        bus, QLatin1StringView(instancePath), *this,
        QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors);
    m_name.emplace(bus, QLatin1StringView(instanceName), nameMilliseconds);
    // Who has the lock but not the name lost the bus, and nobody can ask it for anything any more.
    const Claim result = !m_name->isOwned()           ? Claim::taken
                         : !m_lock.takeOver(endLimit) ? Claim::unreachable
                                                      : Claim::first;
    if (result != Claim::first) {
        m_name.reset();
        m_object.reset();
        return result;
    }
    return result;
}

bool BusInstance::OpenWindow(const QString& identifier, const QString& activationToken) {
    const auto window = windowOfIdentifier(identifier.toStdString());
    if (!window || !m_requests.openWindow)
        return false;
    expect(activationToken);
    return m_requests.openWindow(*window);
}

bool BusInstance::OpenPractice(const QString& bundleID, const QString& activationToken) {
    if (!m_requests.openPractice)
        return false;
    expect(activationToken);
    m_requests.openPractice(bundleID.toStdString());
    return true;
}

void BusInstance::expect(const QString& activationToken) const {
    if (!activationToken.isEmpty() && m_requests.expectActivation)
        m_requests.expectActivation(activationToken.toStdString());
}

void BusInstance::lookForBus() {
    if (m_search.joinable() || m_bus.address().empty())
        return;
    m_search = std::jthread([this](const std::stop_token& stop) {
        while (pauseFor(m_retryInterval, stop)) {
            const BusAnswer answer = askBus(m_bus.address(), instanceName, SessionBus::defaultLimit, stop);
            if (answer.state != BusState::answers)
                continue;
            QMetaObject::invokeMethod(
                this,
                [this, answer] { m_returned.emit(answer.isOwned ? Return::giveWay : Return::startAnew); },
                Qt::QueuedConnection);
            return;
        }
    });
}

} // namespace quillon
