#include "raw_menu_item.h"

#include <quillon/kit/base/hash.h>

std::size_t std::hash<quillon::RawMenuItem>::operator()(const quillon::RawMenuItem& item) const noexcept {
    return quillon::hashOf(
        item.title, item.cmdChar, item.cmdModifiers, item.cmdGlyph, item.cmdVirtualKey, item.enabled,
        item.children);
}
