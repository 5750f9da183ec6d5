#pragma once

#include <quillon/app/ports/menu_use.h>
#include <quillon/kit/base/instant.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A command with a shortcut that was chosen with the pointer.
struct MenuPick {
    RunningApp app;
    std::vector<std::string> path; ///< two titles at least
    Shortcut shortcut;

    bool operator==(const MenuPick&) const = default;
};

/// Makes clicks on menu commands of the evidence of menus in use. A value: nothing happens but what its
/// operations do. It remembers what was pointed at since the menus opened and the last button that was let
/// go, and is done with them when the next menu opens.
class MenuClickDetector {
  public:
    /// Of how many items it remembers what was told, those pointed at last.
    static constexpr std::size_t mostItems = 64;

    /// Something was noticed. The click that is certain now, if it is one; each button that was let go is
    /// answered once at most. The times are those of one clock that never goes back.
    std::optional<MenuPick> noticed(const MenuEvidence& evidence, Instant now);

    /// How many items it remembers.
    std::size_t items() const { return m_items.size(); }

    bool operator==(const MenuClickDetector&) const = default;

  private:
    struct Item {
        MenuItemNumber number = 0;
        Instant pointedAt;           ///< since when
        std::optional<Instant> left; ///< absent while it is pointed at
        std::optional<MenuItemFacts> facts;
        Instant told; ///< where there are facts

        bool operator==(const Item&) const = default;
    };
    struct Release {
        Point at;
        Instant time;

        bool operator==(const Release&) const = default;
    };

    void handle(const menu_use::Opened& opened, Instant now);
    void handle(const menu_use::Pointed& pointed, Instant now);
    void handle(const menu_use::Told& told, Instant now);
    void handle(const menu_use::Released& released, Instant now);
    void handle(const menu_use::Closed& closed, Instant now);

    std::optional<MenuPick> answer();
    std::vector<const Item*> candidates() const;
    const Item* releasedOn() const;
    Seconds sinceRelease(Instant time) const;
    bool isClick(const Item& item) const;

    std::optional<RunningApp>
        m_app; ///< whose menus are open or have just closed; absent when that is settled
    std::optional<Instant> m_closed; ///< absent while they are open
    std::vector<Item> m_items;       ///< that which was pointed at last at the end
    std::optional<Release> m_release;
};

} // namespace quillon
