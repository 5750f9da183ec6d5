#include "settings.h"

#include <cmath>

namespace quillon {

namespace {

const QString triggerName = QStringLiteral("trigger");
const QString holdDelayName = QStringLiteral("holdDelay");
const QString nudgesOnName = QStringLiteral("nudgesOn");
const QString countTypedName = QStringLiteral("countTyped");
const QString onboardedName = QStringLiteral("onboarded");

constexpr Seconds defaultHoldDelay{0.8};

} // namespace

Settings::Settings(const QString& path) : m_store(path, QSettings::IniFormat) {}

TriggerKey Settings::trigger() const {
    return triggerKeyFromRawValue(m_store.value(triggerName).toString().toStdString());
}

void Settings::setTrigger(TriggerKey trigger) {
    m_store.setValue(triggerName, QString::fromStdString(std::string(rawValue(trigger))));
    m_store.sync();
}

Seconds Settings::holdDelay() const {
    bool isNumber = false;
    const double seconds = m_store.value(holdDelayName).toString().toDouble(&isNumber);
    return isNumber && std::isfinite(seconds) ? Seconds(seconds) : defaultHoldDelay;
}

void Settings::setHoldDelay(Seconds delay) {
    m_store.setValue(holdDelayName, delay.count());
    m_store.sync();
}

bool Settings::nudgesOn() const {
    return flag(nudgesOnName, true);
}

void Settings::setNudgesOn(bool on) {
    m_store.setValue(nudgesOnName, on);
    m_store.sync();
}

bool Settings::countTyped() const {
    return flag(countTypedName, true);
}

void Settings::setCountTyped(bool on) {
    m_store.setValue(countTypedName, on);
    m_store.sync();
}

bool Settings::onboarded() const {
    return flag(onboardedName, false);
}

void Settings::setOnboarded(bool onboarded) {
    m_store.setValue(onboardedName, onboarded);
    m_store.sync();
}

// An INI file holds text, so a Boolean is one of two words; anything else is no Boolean.
bool Settings::flag(const QString& key, bool fallback) const {
    const QString text = m_store.value(key).toString();
    if (text == QLatin1String("true"))
        return true;
    if (text == QLatin1String("false"))
        return false;
    return fallback;
}

} // namespace quillon
