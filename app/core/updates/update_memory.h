#pragma once

#include <quillon/kit/base/instant.h>

#include <QSettings>
#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// What is remembered of earlier checks for updates, in the file of the settings. Each is written the moment
/// it is set.
class UpdateMemory {
  public:
    /// As `Settings` takes it.
    explicit UpdateMemory(const QString& path);

    /// When the list of releases was last got, on the clock of the day; absent for never and for what cannot
    /// be read.
    std::optional<Instant> lastCheck() const;
    void setLastCheck(Instant time);

    /// The release that the user has seen and put off, as it is shown; "" for none.
    std::string dismissed() const;
    void setDismissed(const std::string& version);

  private:
    void set(QLatin1StringView key, const QString& value);

    std::unique_ptr<QSettings> m_store; ///< null when nothing is kept
    std::optional<Instant> m_lastCheck;
    std::string m_dismissed;
};

} // namespace quillon
