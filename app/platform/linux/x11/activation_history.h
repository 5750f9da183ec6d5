#pragma once

#include <xcb/xcb.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillon {

/// The windows in the order in which they were active, the most recent first. Remembers the last 64.
class ActivationHistory {
  public:
    void activated(xcb_window_t window) {
        forget(window);
        m_windows.insert(m_windows.begin(), window);
        m_windows.resize(std::min(m_windows.size(), limit));
    }
    void forget(xcb_window_t window) { std::erase(m_windows, window); }

    const std::vector<xcb_window_t>& windows() const { return m_windows; }

  private:
    static constexpr std::size_t limit = 64;
    std::vector<xcb_window_t> m_windows;
};

} // namespace quillon
