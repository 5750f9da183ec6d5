#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// A set of modifier keys, one bit each. Bits without a name are kept as they come and are never made here.
class Modifiers {
  public:
    constexpr Modifiers() = default;
    constexpr explicit Modifiers(std::int64_t rawValue) : m_raw(rawValue) {}
    constexpr Modifiers(std::initializer_list<Modifiers> members) {
        for (const Modifiers member : members)
            m_raw |= member.m_raw;
    }

    static const Modifiers control; ///< bit 1, ⌃
    static const Modifiers option;  ///< bit 2, ⌥
    static const Modifiers shift;   ///< bit 4, ⇧
    static const Modifiers command; ///< bit 8, ⌘

    /// From the accessibility modifier mask of a menu item: 1 shift, 2 option, 4 control, 8 *no* command.
    /// Other bits are ignored, so 0 is ⌘ alone.
    static constexpr Modifiers fromAXMask(std::int64_t mask);
    /// The mask from which `fromAXMask` makes the four named members again; bits without a name are lost.
    constexpr std::int64_t axMask() const;

    constexpr std::int64_t rawValue() const { return m_raw; }
    constexpr bool isEmpty() const { return m_raw == 0; }
    /// Whether every member of `other` is in this set; true for the empty set.
    constexpr bool contains(Modifiers other) const { return (m_raw & other.m_raw) == other.m_raw; }
    constexpr bool isDisjoint(Modifiers other) const { return (m_raw & other.m_raw) == 0; }

    constexpr Modifiers union_(Modifiers other) const { return Modifiers(m_raw | other.m_raw); }
    constexpr Modifiers intersection(Modifiers other) const { return Modifiers(m_raw & other.m_raw); }
    constexpr Modifiers symmetricDifference(Modifiers other) const { return Modifiers(m_raw ^ other.m_raw); }
    constexpr Modifiers subtracting(Modifiers other) const { return Modifiers(m_raw & ~other.m_raw); }

    /// Puts `other` in; true when any of it was missing.
    constexpr bool insert(Modifiers other);
    /// Takes `other` out; true when any of it was there.
    constexpr bool remove(Modifiers other);

    /// Puts `other` in; what of it was there already, absent when nothing was.
    constexpr std::optional<Modifiers> update(Modifiers other);

    /// The glyphs of the members, always in the order ⌃⌥⇧⌘; "" for none.
    std::string glyphs() const;
    /// The words of the members in the same order: "Control", "Option", "Shift", "Command".
    std::vector<std::string> words() const;

    constexpr auto operator<=>(const Modifiers&) const = default;

  private:
    std::int64_t m_raw = 0;
};

constexpr Modifiers operator|(Modifiers a, Modifiers b) {
    return a.union_(b);
}

inline constexpr Modifiers Modifiers::control{1};
inline constexpr Modifiers Modifiers::option{2};
inline constexpr Modifiers Modifiers::shift{4};
inline constexpr Modifiers Modifiers::command{8};

constexpr Modifiers Modifiers::fromAXMask(std::int64_t mask) {
    Modifiers result;
    if (mask & 1)
        result.insert(shift);
    if (mask & 2)
        result.insert(option);
    if (mask & 4)
        result.insert(control);
    if (!(mask & 8))
        result.insert(command);
    return result;
}

constexpr std::int64_t Modifiers::axMask() const {
    std::int64_t mask = 0;
    if (contains(shift))
        mask |= 1;
    if (contains(option))
        mask |= 2;
    if (contains(control))
        mask |= 4;
    if (!contains(command))
        mask |= 8;
    return mask;
}

constexpr bool Modifiers::insert(Modifiers other) {
    const bool fresh = !contains(other);
    m_raw |= other.m_raw;
    return fresh;
}

constexpr bool Modifiers::remove(Modifiers other) {
    const bool held = !isDisjoint(other);
    m_raw &= ~other.m_raw;
    return held;
}

constexpr std::optional<Modifiers> Modifiers::update(Modifiers other) {
    const Modifiers held = intersection(other);
    m_raw |= other.m_raw;
    return held.isEmpty() ? std::nullopt : std::optional(held);
}

} // namespace quillon

template <>
struct std::hash<quillon::Modifiers> {
    std::size_t operator()(quillon::Modifiers modifiers) const noexcept {
        return std::hash<std::int64_t>{}(modifiers.rawValue());
    }
};
