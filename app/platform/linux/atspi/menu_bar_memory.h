#pragma once

#include "object_ref.h"

#include <quillon/app/platform/linux/atspi/key_binding/toolkit.h>
#include <quillon/app/ports/running_app.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

namespace quillon::atspi {

/// The menu bar of a window.
struct KnownMenuBar {
    ObjectRef object;
    ToolkitFamily family = ToolkitFamily::other;
    std::int64_t busPid = 0; ///< the process that the bus knows it by; a sandbox's proxy for what is in one
};

/// Remembers where the menu bars of windows were found: looking for one costs an application more than most
/// of what is asked afterwards. Of any thread. What it gives may be gone meanwhile.
class MenuBarMemory {
  public:
    /// That of the application's best window.
    std::optional<KnownMenuBar> recall(const RunningApp& app) const;
    /// Of a window that has no number nothing is remembered.
    void remember(const RunningApp& app, KnownMenuBar menuBar);

  private:
    struct Entry {
        std::int64_t pid;
        std::uint64_t window;
        KnownMenuBar menuBar;
    };
    static constexpr std::size_t mostEntries = 32;

    mutable std::mutex m_mutex;
    std::deque<Entry> m_entries; ///< the newest first
};

} // namespace quillon::atspi
