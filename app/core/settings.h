#pragma once

#include "trigger_key.h"

#include <quillon/kit/base/instant.h>

#include <QSettings>
#include <QString>

namespace quillon {

/// The five settings. Each is written to its key the moment it is set; a missing or mistyped value reads as
/// its default.
class Settings {
  public:
    /// Kept in the INI file at `path`.
    explicit Settings(const QString& path);

    TriggerKey trigger() const;
    void setTrigger(TriggerKey trigger);

    /// How long the trigger is held before the overlay shows. 0.8 s by default.
    Seconds holdDelay() const;
    void setHoldDelay(Seconds delay);

    bool nudgesOn() const;
    void setNudgesOn(bool on);

    bool countTyped() const;
    void setCountTyped(bool on);

    bool onboarded() const;
    void setOnboarded(bool onboarded);

  private:
    bool flag(const QString& key, bool fallback) const;

    QSettings m_store;
};

} // namespace quillon
