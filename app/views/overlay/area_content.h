#pragma once

#include <quillon/app/views/components/symbols.h>
#include <quillon/app/views/sheet/prepared_sheet.h>

#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// Rows of a card that belong together: those of one submenu, or those of none.
struct AreaSection {
    QString caption;               ///< the submenu; empty for the rows outside of any
    std::vector<std::size_t> rows; ///< positions in `PreparedSheet::entries`

    bool operator==(const AreaSection&) const = default;
};

enum class CardShape {
    narrow, ///< one column of rows
    wide    ///< across the whole area, its rows in a grid; rows name their submenus themselves
};

struct AreaCard {
    QString title;
    std::optional<Symbol> icon;
    CardShape shape = CardShape::narrow;
    std::vector<AreaSection> sections;

    std::size_t rowCount() const;
    bool operator==(const AreaCard&) const = default;
};

/// What the shortcut area shows, in reading order: the pinned commands first if there are any, then a card
/// per menu.
struct AreaContent {
    std::vector<AreaCard> cards;

    /// Of the found entries (`matches`: ascending positions) of the sheet.
    static AreaContent of(const PreparedSheet& sheet, std::span<const std::size_t> matches);

    bool operator==(const AreaContent&) const = default;
};

} // namespace quillon
