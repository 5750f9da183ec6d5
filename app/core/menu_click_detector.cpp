#include "menu_click_detector.h"

#include "menu_click.h"

#include <algorithm>
#include <utility>

namespace quillon {

std::optional<MenuPick> MenuClickDetector::noticed(const MenuEvidence& evidence, Instant now) {
    std::visit([this, now](const auto& one) { handle(one, now); }, evidence);
    return answer();
}

void MenuClickDetector::handle(const menu_use::Opened& opened, Instant) {
    *this = MenuClickDetector();
    m_app = opened.app;
}

void MenuClickDetector::handle(const menu_use::Pointed& pointed, Instant now) {
    if (!m_app)
        return;
    if (!m_items.empty() && m_items.back().number != pointed.item && !m_items.back().left)
        m_items.back().left = now;
    if (pointed.item == 0)
        return;
    const auto known = std::ranges::find(m_items, pointed.item, &Item::number);
    if (known == m_items.end()) {
        if (m_items.size() == mostItems)
            m_items.erase(m_items.begin());
        m_items.push_back({.number = pointed.item, .pointedAt = now, .left = {}, .facts = {}, .told = now});
        return;
    }
    known->left.reset();
    if (known + 1 == m_items.end())
        return;
    known->pointedAt = now;
    std::rotate(known, known + 1, m_items.end());
}

// Choosing a command may disable it, so what was told before the button was let go stands.
void MenuClickDetector::handle(const menu_use::Told& told, Instant now) {
    const auto item = std::ranges::find(m_items, told.item, &Item::number);
    if (item == m_items.end())
        return;
    if (item->facts && m_release && item->told <= m_release->time)
        return;
    item->facts = told.facts;
    item->told = now;
}

// One that is let go later, in another window, has nothing to do with the menus.
void MenuClickDetector::handle(const menu_use::Released& released, Instant now) {
    if (m_app && (!m_closed || mayHaveClosed(secondsBetween(now, *m_closed))))
        m_release = {released.at, now};
}

void MenuClickDetector::handle(const menu_use::Closed&, Instant now) {
    if (m_app && !m_closed)
        m_closed = now;
}

Seconds MenuClickDetector::sinceRelease(Instant time) const {
    return secondsBetween(m_release->time, time);
}

/// What may have been pointed at when the button was let go: what was told before, that of the last moment
/// first, then what was told only afterwards, in order.
std::vector<const MenuClickDetector::Item*> MenuClickDetector::candidates() const {
    const auto wasPointedAtThen = [this](const Item& item) {
        return wasPointedAt(item.left ? std::optional(sinceRelease(*item.left)) : std::nullopt);
    };
    const auto late =
        std::ranges::find_if(m_items, [this](const Item& item) { return item.pointedAt > m_release->time; });
    std::vector<const Item*> found;
    for (auto item = late; item != m_items.begin() && wasPointedAtThen(*std::prev(item)); --item)
        found.push_back(&*std::prev(item));
    for (auto item = late; item != m_items.end(); ++item)
        found.push_back(&*item);
    return found;
}

/// The item below the button that was let go; null while that is not known. Menus lie on each other, so what
/// the application has yet to tell of the first candidate is waited for.
const MenuClickDetector::Item* MenuClickDetector::releasedOn() const {
    const std::vector<const Item*> all = candidates();
    if (all.empty() || !all.front()->facts)
        return nullptr;
    const auto below = std::ranges::find_if(
        all, [this](const Item* item) { return item->facts && isOver(item->facts->frame, m_release->at); });
    return below == all.end() ? nullptr : *below;
}

bool MenuClickDetector::isClick(const Item& item) const {
    return isMenuClick({
        .frame = item.facts->frame,
        .releasedAt = m_release->at,
        .left = item.left ? std::optional(sinceRelease(*item.left)) : std::nullopt,
        .closed = sinceRelease(*m_closed),
        .told = sinceRelease(item.told),
        .enabled = item.facts->enabled,
        .hasShortcut = item.facts->shortcut.has_value(),
        .titles = item.facts->path.size(),
    });
}

std::optional<MenuPick> MenuClickDetector::answer() {
    if (!m_app || !m_release || !m_closed)
        return std::nullopt;
    const Item* const item = releasedOn();
    if (!item || !isClick(*item))
        return std::nullopt;
    MenuPick pick{*m_app, item->facts->path, *item->facts->shortcut};
    *this = MenuClickDetector();
    return pick;
}

} // namespace quillon
