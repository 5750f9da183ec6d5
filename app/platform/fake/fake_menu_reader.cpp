#include "fake_menu_reader.h"

#include <utility>

namespace quillon {

MenuReading FakeMenuReader::readMenus(const RunningApp& app, std::stop_token stop) {
    const std::lock_guard lock(m_mutex);
    m_asked.push_back(app);
    if (stop.stop_requested())
        return {{}, ReadOutcome::partial};
    if (const auto found = m_byPid.find(app.pid); found != m_byPid.end())
        return found->second;
    if (const auto found = m_byBundleID.find(app.bundleID); found != m_byBundleID.end())
        return found->second;
    return {{}, ReadOutcome::noSuchApp};
}

void FakeMenuReader::answer(const std::string& bundleID, MenuReading reading) {
    const std::lock_guard lock(m_mutex);
    m_byBundleID.insert_or_assign(bundleID, std::move(reading));
}

void FakeMenuReader::answer(std::int64_t pid, MenuReading reading) {
    const std::lock_guard lock(m_mutex);
    m_byPid.insert_or_assign(pid, std::move(reading));
}

std::vector<RunningApp> FakeMenuReader::asked() const {
    const std::lock_guard lock(m_mutex);
    return m_asked;
}

} // namespace quillon
