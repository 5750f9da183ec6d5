#pragma once

#include <quillon/app/ports/menu_use.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <utility>

namespace quillon {

/// The items of open menus that are known so far, by where they are. A menu keeps its items where they are
/// for as long as it is open, unless it scrolls: then `forget` it.
class PointedItems {
  public:
    struct Item {
        MenuItemNumber number;
        std::uint64_t opening; ///< of its menu
        MenuItemFacts facts;   ///< with a frame
    };

    /// Facts without a frame are not kept; of one place the last ones are.
    void learn(Item item) {
        if (!item.facts.frame)
            return;
        m_items.push_front(std::move(item));
        if (m_items.size() > most)
            m_items.pop_back();
    }
    void forget(std::uint64_t opening) {
        std::erase_if(m_items, [opening](const Item& item) { return item.opening == opening; });
    }
    /// nullptr when nothing known is there. Valid until something is learned or forgotten.
    const Item* at(std::uint64_t opening, Point place) const {
        for (const Item& item : m_items)
            if (item.opening == opening && item.facts.frame->contains(place))
                return &item;
        return nullptr;
    }

  private:
    static constexpr std::size_t most = 256;
    std::deque<Item> m_items; ///< the newest first
};

} // namespace quillon
