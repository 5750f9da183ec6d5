#include "settings.h"

#include "settings_store.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

QString nameOf(Setting setting) {
    switch (setting) {
    case Setting::trigger: return QStringLiteral("trigger");
    case Setting::holdDelay: return QStringLiteral("holdDelay");
    case Setting::nudgesOn: return QStringLiteral("nudgesOn");
    case Setting::countTyped: return QStringLiteral("countTyped");
    case Setting::onboarded: return QStringLiteral("onboarded");
    case Setting::keyLabels: return QStringLiteral("keyLabels");
    case Setting::settingsTab: return QStringLiteral("settingsTab");
    }
    return {};
}

bool isDelay(Seconds delay) {
    return std::isfinite(delay.count()) && delay.count() >= 0;
}

QString textOf(const QSettings& store, Setting setting) {
    return store.value(nameOf(setting)).toString();
}

// An INI file holds text, so a Boolean is one of two words; anything else is no Boolean.
bool flag(const QSettings& store, Setting setting, bool fallback) {
    const QString text = textOf(store, setting);
    if (text == QLatin1String("true"))
        return true;
    if (text == QLatin1String("false"))
        return false;
    return fallback;
}

Seconds delay(const QSettings& store, Seconds fallback) {
    bool isNumber = false;
    const Seconds stored(textOf(store, Setting::holdDelay).toDouble(&isNumber));
    return isNumber && isDelay(stored) ? stored : fallback;
}

template <class Choice>
struct StoredChoice {
    Choice choice;
    const char* word;
};

constexpr std::array keyLabelWords{
    StoredChoice<KeyLabels>{KeyLabels::symbols, "symbols"},
    StoredChoice<KeyLabels>{KeyLabels::names, "names"}};
constexpr std::array settingsTabWords{
    StoredChoice<SettingsTab>{SettingsTab::general, "general"},
    StoredChoice<SettingsTab>{SettingsTab::coach, "coach"},
    StoredChoice<SettingsTab>{SettingsTab::privacy, "privacy"}};

template <class Choice, std::size_t count>
Choice choiceOf(const QString& word, const std::array<StoredChoice<Choice>, count>& words, Choice fallback) {
    for (const auto& stored : words)
        if (word == QLatin1StringView(stored.word))
            return stored.choice;
    return fallback;
}

template <class Choice, std::size_t count>
QString wordOf(Choice choice, const std::array<StoredChoice<Choice>, count>& words) {
    const auto stored = std::ranges::find(words, choice, &StoredChoice<Choice>::choice);
    return stored == words.end() ? QString() : QString::fromLatin1(stored->word);
}

} // namespace

Settings::Settings(const QString& path) : m_store(openSettingsStore(path)) {
    if (m_store)
        read();
}

void Settings::read() {
    m_trigger = triggerKeyFromRawValue(textOf(*m_store, Setting::trigger).toStdString());
    m_holdDelay = delay(*m_store, m_holdDelay);
    m_nudgesOn = flag(*m_store, Setting::nudgesOn, m_nudgesOn);
    m_countTyped = flag(*m_store, Setting::countTyped, m_countTyped);
    m_onboarded = flag(*m_store, Setting::onboarded, m_onboarded);
    m_keyLabels = choiceOf(textOf(*m_store, Setting::keyLabels), keyLabelWords, m_keyLabels);
    m_settingsTab = choiceOf(textOf(*m_store, Setting::settingsTab), settingsTabWords, m_settingsTab);
}

template <class Value>
void Settings::set(Value& field, const Value& value, Setting setting, const QVariant& stored) {
    if (field == value)
        return;
    field = value;
    if (m_store) {
        m_store->setValue(nameOf(setting), stored);
        m_store->sync();
    }
    changed.emit(setting);
}

void Settings::setTrigger(TriggerKey trigger) {
    set(m_trigger, trigger, Setting::trigger, QString::fromStdString(std::string(rawValue(trigger))));
}

void Settings::setHoldDelay(Seconds delay) {
    if (isDelay(delay))
        set(m_holdDelay, delay, Setting::holdDelay, delay.count());
}

void Settings::setNudgesOn(bool on) {
    set(m_nudgesOn, on, Setting::nudgesOn, on);
}

void Settings::setCountTyped(bool on) {
    set(m_countTyped, on, Setting::countTyped, on);
}

void Settings::setOnboarded(bool onboarded) {
    set(m_onboarded, onboarded, Setting::onboarded, onboarded);
}

void Settings::setKeyLabels(KeyLabels labels) {
    set(m_keyLabels, labels, Setting::keyLabels, wordOf(labels, keyLabelWords));
}

void Settings::setSettingsTab(SettingsTab tab) {
    set(m_settingsTab, tab, Setting::settingsTab, wordOf(tab, settingsTabWords));
}

} // namespace quillon
