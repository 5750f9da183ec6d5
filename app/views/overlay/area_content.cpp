#include "area_content.h"

#include "overlay_texts.h"

#include <utility>

namespace quillon {

namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

std::optional<AreaCard> pinnedCard(const PreparedSheet& sheet, std::span<const std::size_t> matches) {
    AreaSection section;
    for (const std::size_t entry : matches) {
        if (sheet.entries[entry].pinned)
            section.rows.push_back(entry);
    }
    if (section.rows.empty())
        return std::nullopt;
    return AreaCard{
        .title = OverlayTexts::pinned(),
        .icon = Symbol::pinFill,
        .shape = CardShape::wide,
        .sections = {section}};
}

void append(AreaCard& card, const PreparedEntry& entry, std::size_t position) {
    if (card.sections.empty() || card.sections.back().caption != entry.submenu)
        card.sections.push_back({.caption = entry.submenu, .rows = {}});
    card.sections.back().rows.push_back(position);
}

} // namespace

std::size_t AreaCard::rowCount() const {
    std::size_t count = 0;
    for (const AreaSection& section : sections)
        count += section.rows.size();
    return count;
}

AreaContent AreaContent::of(const PreparedSheet& sheet, std::span<const std::size_t> matches) {
    AreaContent content;
    if (auto pinned = pinnedCard(sheet, matches))
        content.cards.push_back(std::move(*pinned));

    std::vector<std::size_t> cardOfMenu(sheet.menus.size(), none);
    for (const std::size_t position : matches) {
        const PreparedEntry& entry = sheet.entries[position];
        std::size_t& card = cardOfMenu[entry.menu];
        if (card == none) {
            card = content.cards.size();
            content.cards.push_back(
                {.title = sheet.menus[entry.menu], .icon = {}, .shape = CardShape::narrow, .sections = {}});
        }
        append(content.cards[card], entry, position);
    }
    return content;
}

} // namespace quillon
