#include "special_key.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <span>

namespace quillon::SpecialKeys {

namespace {

using enum SpecialKey;

struct Row {
    std::int64_t number;
    SpecialKey key;
};

constexpr Row glyphRows[] = {
    {2, tab},        {3, backTab},  {4, enter},   {9, space},  {10, forwardDelete}, {11, returnKey},
    {13, returnKey}, {23, delete_}, {27, escape}, {28, clear}, {98, pageUp},        {100, left},
    {101, right},    {102, home},   {103, help},  {104, up},   {105, end},          {106, down},
    {107, pageDown}, {111, f1},     {112, f2},    {113, f3},   {114, f4},           {115, f5},
    {116, f6},       {117, f7},     {118, f8},    {119, f9},   {120, f10},          {121, f11},
    {122, f12},      {135, f13},    {136, f14},   {137, f15},  {140, eject},        {141, f16},
    {142, f17},      {143, f18},    {144, f19},
};

constexpr Row keyCodeRows[] = {
    {36, returnKey}, {48, tab},     {49, space},
    {51, delete_},   {53, escape},  {64, f17},
    {71, clear},     {76, enter},   {79, f18},
    {80, f19},       {96, f5},      {97, f6},
    {98, f7},        {99, f3},      {100, f8},
    {101, f9},       {103, f11},    {105, f13},
    {106, f16},      {107, f14},    {109, f10},
    {111, f12},      {113, f15},    {114, help},
    {115, home},     {116, pageUp}, {117, forwardDelete},
    {118, f4},       {119, end},    {120, f2},
    {121, pageDown}, {122, f1},     {123, left},
    {124, right},    {125, down},   {126, up},
};

/// Control characters, and the private-use code points from 0xF700 by which menus name function keys.
constexpr Row characterRows[] = {
    {3, enter},      {8, delete_},   {9, tab},         {13, returnKey},
    {25, backTab},   {27, escape},   {32, space},      {127, delete_},
    {0xF700, up},    {0xF701, down}, {0xF702, left},   {0xF703, right},
    {0xF704, f1},    {0xF705, f2},   {0xF706, f3},     {0xF707, f4},
    {0xF708, f5},    {0xF709, f6},   {0xF70A, f7},     {0xF70B, f8},
    {0xF70C, f9},    {0xF70D, f10},  {0xF70E, f11},    {0xF70F, f12},
    {0xF710, f13},   {0xF711, f14},  {0xF712, f15},    {0xF713, f16},
    {0xF714, f17},   {0xF715, f18},  {0xF716, f19},    {0xF728, forwardDelete},
    {0xF729, home},  {0xF72B, end},  {0xF72C, pageUp}, {0xF72D, pageDown},
    {0xF739, clear}, {0xF746, help},
};

constexpr bool isAscending(std::span<const Row> rows) {
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (rows[i - 1].number >= rows[i].number)
            return false;
    }
    return true;
}
static_assert(isAscending(glyphRows) && isAscending(keyCodeRows) && isAscending(characterRows));

std::optional<SpecialKey> find(std::span<const Row> rows, std::int64_t number) {
    const auto row = std::ranges::lower_bound(rows, number, {}, &Row::number);
    return row != rows.end() && row->number == number ? std::optional(row->key) : std::nullopt;
}

/// The first of the key's rows; nullptr when it has none.
const Row* rowOf(std::span<const Row> rows, SpecialKey key) {
    const auto row = std::ranges::find(rows, key, &Row::key);
    return row == rows.end() ? nullptr : &*row;
}

constexpr bool namesEveryKey(std::span<const Row> rows) {
    for (std::size_t key = 0; key < specialKeyCount; ++key) {
        if (std::ranges::find(rows, static_cast<SpecialKey>(key), &Row::key) == rows.end())
            return false;
    }
    return true;
}
static_assert(namesEveryKey(glyphRows));

} // namespace

std::optional<SpecialKey> fromAXGlyph(std::int64_t glyph) {
    return find(glyphRows, glyph);
}

std::optional<SpecialKey> fromKeyCode(std::int64_t keyCode) {
    return find(keyCodeRows, keyCode);
}

std::optional<SpecialKey> fromCharacter(std::string_view character) {
    const std::optional<char32_t> scalar = unicode::onlyScalar(character);
    return scalar ? find(characterRows, static_cast<std::int64_t>(*scalar)) : std::nullopt;
}

std::optional<char32_t> characterOf(SpecialKey key) {
    const Row* row = rowOf(characterRows, key);
    return row ? std::optional(static_cast<char32_t>(row->number)) : std::nullopt;
}

std::int64_t axGlyphOf(SpecialKey key) {
    return rowOf(glyphRows, key)->number;
}

} // namespace quillon::SpecialKeys
