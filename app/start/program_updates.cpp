#include "program_updates.h"

#include "release_source.h"

#include <quillon/app/core/updates/web/loaded/loaded_ask_feed.h>

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>

namespace quillon {

namespace {

QString webLibrary() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" QUILLON_WEB_LIBRARY));
}

} // namespace

ProgramUpdates::ProgramUpdates(const Needs& needs)
    : m_source(releaseSource()), m_ask(loadedAskFeed(webLibrary())), m_memory(needs.settingsFile),
      m_windows({
          .themes = needs.themes,
          .foreground = needs.foreground,
          .pages = needs.pages,
          .version = m_source.version,
          .dismissed = [this](const std::string& version) { m_memory.setDismissed(version); },
      }),
      m_framework({needs.background, needs.timers, m_ask}, m_windows, m_source),
      m_updater({
          .framework = m_framework,
          .notices = m_windows,
          .background = needs.background,
          .timers = needs.timers,
          .ask = m_ask,
          .sender = m_source.sender(),
      }),
      m_daily(
          {.clock = needs.clock, .timers = needs.timers, .memory = m_memory, .notices = m_windows},
          {needs.background, needs.timers, m_ask}, m_source, QRandomGenerator::global()->generateDouble()) {}

} // namespace quillon
