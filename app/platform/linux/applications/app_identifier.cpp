#include "app_identifier.h"

#include "process_facts.h"

#include <utility>

namespace quillon {

namespace {

/// Windows without an entry are common enough (scripts, things built at home) that the disk is not to be
/// read with each of them.
constexpr Seconds shortestTimeBetweenReadings{60};
/// Enough for the windows of a day; the map starts over when it is full.
constexpr std::size_t knownLimit = 256;

} // namespace

AppIdentifier::AppIdentifier(Background& background, const Clock& clock, Loader load, std::string processes)
    : m_background(background), m_clock(clock), m_load(std::move(load)), m_processes(std::move(processes)) {
    this->load();
}

void AppIdentifier::load() {
    m_loading = m_background.run([this, read = m_load](std::stop_token) {
        auto entries = std::make_shared<const DesktopEntries>(read());
        return [this, entries = std::move(entries)] {
            m_loading.reset();
            m_loadedAt = m_clock.steadyNow();
            m_entries = entries;
            m_known.clear();
            m_read.emit();
        };
    });
}

void AppIdentifier::loadAnewIfDue() {
    if (!m_loading && secondsBetween(m_loadedAt, m_clock.steadyNow()) >= shortestTimeBetweenReadings)
        load();
}

std::optional<AppIdentity> AppIdentifier::identify(const WindowFacts& window) {
    if (!m_entries)
        return std::nullopt;
    if (const auto known = m_known.find(window); known != m_known.end())
        return known->second;
    const ProcessFacts process = window.pid > 0 ? readProcess(window.pid, m_processes) : ProcessFacts();
    AppIdentity identity = m_entries->identify(window, process);
    if (m_entries->byID(identity.bundleID) == nullptr)
        loadAnewIfDue();
    if (m_known.size() >= knownLimit)
        m_known.clear();
    m_known.emplace(window, identity);
    return identity;
}

} // namespace quillon
