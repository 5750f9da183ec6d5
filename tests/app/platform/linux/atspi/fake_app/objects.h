#pragma once

#include "options.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillon::fake_app {

/// One accessible object of the fake application.
struct Object {
    std::string path;
    Object* parent = nullptr;
    std::uint32_t role = 0;
    std::uint32_t claimedRole = 0; ///< what it answers; differs for a stale role
    std::string name;
    std::string keyBinding;
    int actions = 0;
    bool enabled = true;
    bool sensitive = true;
    bool showing = false;
    bool visible = true;
    std::int32_t x = 0; ///< on the screen
    std::int32_t y = 0;
    std::int32_t width = 1;
    std::int32_t height = 1;
    bool active = false;
    bool focused = false;
    Object* selectedChild = nullptr; ///< as toolkits other than Qt tell it
    bool isInMenus = false;          ///< the menu bar and what is below
    std::vector<Object*> children;

    std::uint64_t stateBits() const;
};

/// All objects of the fake application: the root, its windows, one menu bar in each, and the items.
class Objects {
  public:
    /// Absent when the recording cannot be read.
    static std::optional<Objects> make(const Options& options);

    Object* find(std::string_view path);
    Object& root() { return m_all.front(); }
    const std::deque<Object>& all() const { return m_all; }
    const std::string& toolkit() const { return m_toolkit; }
    const std::string& toolkitVersion() const { return m_toolkitVersion; }

  private:
    Object& add(Object* parent, std::uint32_t role, std::string name);
    Object& addWindow(const std::string& title, std::uint32_t role);
    void addImaginedBar(Object& window);
    bool addRecording(Object& menuBar, const std::string& file);
    void addMadeUp(Object& menuBar, const std::string& window, const Options& options);
    void addItem(Object& menu, std::size_t number);
    bool open(Object& menuBar, const std::vector<std::string>& names);
    void layOut(Object& menu, int level);
    void spoil(Object& menuBar, const Options& options);

    std::deque<Object> m_all;
    std::unordered_map<std::string, Object*> m_byPath;
    std::string m_toolkit;
    std::string m_toolkitVersion;
};

namespace role {
inline constexpr std::uint32_t application = 75, checkMenuItem = 8, dialog = 16, filler = 18, frame = 23,
                               menu = 33, menuBar = 34, menuItem = 35, popupMenu = 41, radioMenuItem = 45,
                               separator = 50, tearOffMenuItem = 59;
} // namespace role

} // namespace quillon::fake_app
