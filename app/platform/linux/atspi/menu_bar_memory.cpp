#include "menu_bar_memory.h"

#include <algorithm>
#include <utility>

namespace quillon::atspi {
namespace {

std::uint64_t bestWindowOf(const RunningApp& app) {
    return app.windows.empty() ? 0 : app.windows.front().id;
}

} // namespace

std::optional<KnownMenuBar> MenuBarMemory::recall(const RunningApp& app) const {
    const std::scoped_lock lock(m_mutex);
    const auto found = std::ranges::find_if(m_entries, [&app](const Entry& entry) {
        return entry.pid == app.pid && entry.window == bestWindowOf(app);
    });
    return found == m_entries.end() ? std::nullopt : std::optional(found->menuBar);
}

void MenuBarMemory::remember(const RunningApp& app, KnownMenuBar menuBar) {
    const std::uint64_t window = bestWindowOf(app);
    if (window == 0)
        return;
    const std::scoped_lock lock(m_mutex);
    std::erase_if(
        m_entries, [&](const Entry& entry) { return entry.pid == app.pid && entry.window == window; });
    m_entries.push_front({app.pid, window, std::move(menuBar)});
    if (m_entries.size() > mostEntries)
        m_entries.pop_back();
}

} // namespace quillon::atspi
