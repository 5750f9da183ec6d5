#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// How values stand in JSON. `bool`, `std::int64_t`, `std::string`, `std::vector` and `std::map` by names do
/// so by themselves; any other type once it has a `Form`, which is one of two kinds:
///
///     // A record: an object with known members. One of the type std::optional may be missing.
///     template <>
///     struct quillon::Json::Form<Bookmark> {
///         static constexpr auto members =
///             std::tuple(member("keys", &Bookmark::keys), member("title", &Bookmark::title));
///     };
///
///     // A value that is written as another.
///     template <>
///     struct quillon::Json::Form<Colour> {
///         using Stored = std::string;
///         static constexpr std::string_view expected = "a colour";
///         static Stored stored(const Colour& colour);
///         static std::optional<Colour> restored(const Stored& text); // absent: the text is refused
///     };
namespace quillon::Json {

/// Declared for every type that others store; see above. A record of a type that has no default constructor
/// names a value to begin with: `static Value blank();`.
template <class Value>
struct Form;

/// The numbers that a member takes, both ends included.
struct Range {
    std::int64_t least = std::numeric_limits<std::int64_t>::min();
    std::int64_t most = std::numeric_limits<std::int64_t>::max();
};

/// One member of a record.
template <class Owner, class Type>
struct Member {
    std::string_view name;
    Type Owner::*place;
    Range range;
};

template <class Owner, class Type>
constexpr Member<Owner, Type> member(std::string_view name, Type Owner::*place) {
    return {name, place, {}};
}

/// A number outside of `range` is refused on reading.
template <class Owner>
constexpr Member<Owner, std::int64_t> member(std::string_view name, std::int64_t Owner::*place, Range range) {
    return {name, place, range};
}

template <class Value>
concept Record = requires {
    Form<Value>::members;
};

template <class Value>
concept StoredAsAnother = requires(const Value& value, const typename Form<Value>::Stored& stored) {
    static_cast<typename Form<Value>::Stored>(Form<Value>::stored(value));
    { Form<Value>::restored(stored) } -> std::same_as<std::optional<Value>>;
    { Form<Value>::expected } -> std::convertible_to<std::string_view>;
};

template <class Value>
inline constexpr bool hasForm = Record<Value> || StoredAsAnother<Value>;
template <>
inline constexpr bool hasForm<bool> = true;
template <>
inline constexpr bool hasForm<std::int64_t> = true;
template <>
inline constexpr bool hasForm<std::string> = true;
template <class Element>
inline constexpr bool hasForm<std::vector<Element>> = hasForm<Element>;
template <class Element>
inline constexpr bool hasForm<std::map<std::string, Element, std::less<>>> = hasForm<Element>;

/// What can be written and read.
template <class Value>
concept Storable = hasForm<Value>;

} // namespace quillon::Json
