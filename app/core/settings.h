#pragma once

#include "trigger_key.h"

#include <quillon/kit/base/instant.h>
#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key_labels.h>

#include <QSettings>
#include <QString>

#include <memory>

namespace quillon {

enum class Setting { trigger, holdDelay, nudgesOn, countTyped, onboarded, keyLabels, settingsTab };

/// The tabs of the settings window.
enum class SettingsTab { general, coach, privacy };

/// The settings. Each is written to its key the moment it is set; a missing or mistyped value reads as
/// its default.
class Settings {
  public:
    /// Kept in the INI file at `path`. Where `openSettingsStore` opens none they are not kept and have their
    /// defaults at each start.
    explicit Settings(const QString& path);

    /// Emitted after a setting got another value.
    Event<Setting> changed;

    TriggerKey trigger() const { return m_trigger; }
    void setTrigger(TriggerKey trigger);

    /// How long the trigger is held before the overlay shows. 0.8 s by default.
    Seconds holdDelay() const { return m_holdDelay; }
    /// A delay that is no finite number of at least 0 is not taken.
    void setHoldDelay(Seconds delay);

    /// Whether clicks on menu commands are answered by nudges.
    bool nudgesOn() const { return m_nudgesOn; }
    void setNudgesOn(bool on);

    /// Whether typed shortcuts are counted.
    bool countTyped() const { return m_countTyped; }
    void setCountTyped(bool on);

    /// Whether the welcome was completed.
    bool onboarded() const { return m_onboarded; }
    void setOnboarded(bool onboarded);

    /// How keys are shown.
    KeyLabels keyLabels() const { return m_keyLabels; }
    void setKeyLabels(KeyLabels labels);

    /// The tab of the settings window that was open last.
    SettingsTab settingsTab() const { return m_settingsTab; }
    void setSettingsTab(SettingsTab tab);

  private:
    void read();
    template <class Value>
    void set(Value& field, const Value& value, Setting setting, const QVariant& stored);

    std::unique_ptr<QSettings> m_store; ///< null when nothing is read or written
    TriggerKey m_trigger = TriggerKey::command;
    Seconds m_holdDelay{0.8};
    bool m_nudgesOn = true;
    bool m_countTyped = true;
    bool m_onboarded = false;
    KeyLabels m_keyLabels = KeyLabels::symbols;
    SettingsTab m_settingsTab = SettingsTab::general;
};

} // namespace quillon
