#include "update_memory.h"

#include <quillon/app/core/settings_store.h>

#include <QDateTime>
#include <QTimeZone>

#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView lastCheckKey = "updatesCheckedAt"_L1;
constexpr QLatin1StringView dismissedKey = "dismissedRelease"_L1;

std::optional<Instant> instantOf(const QString& text) {
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (!time.isValid())
        return std::nullopt;
    return Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

QString textOf(Instant time) {
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(time).time_since_epoch().count();
    return QDateTime::fromMSecsSinceEpoch(milliseconds, QTimeZone::utc()).toString(Qt::ISODate);
}

} // namespace

UpdateMemory::UpdateMemory(const QString& path) : m_store(openSettingsStore(path)) {
    if (!m_store)
        return;
    m_lastCheck = instantOf(m_store->value(lastCheckKey).toString());
    m_dismissed = m_store->value(dismissedKey).toString().toStdString();
}

std::optional<Instant> UpdateMemory::lastCheck() const {
    return m_lastCheck;
}

void UpdateMemory::setLastCheck(Instant time) {
    m_lastCheck = time;
    set(lastCheckKey, textOf(time));
}

std::string UpdateMemory::dismissed() const {
    return m_dismissed;
}

void UpdateMemory::setDismissed(const std::string& version) {
    m_dismissed = version;
    set(dismissedKey, QString::fromStdString(version));
}

void UpdateMemory::set(QLatin1StringView key, const QString& value) {
    if (!m_store)
        return;
    m_store->setValue(key, value);
    m_store->sync();
}

} // namespace quillon
