#pragma once

#include "json_form.h"
#include "json_writer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <utility>

/// Writes values by their forms.
namespace quillon::Json {

template <class Value>
void write(JsonWriter& json, const Value& value);

namespace detail {

template <class Value>
constexpr auto memberNames() {
    return std::apply(
        [](const auto&... members) { return std::array{members.name...}; }, Form<Value>::members);
}

/// The places of the members in the order of their names, as the files want them.
template <class Value>
constexpr auto sortedMembers() {
    constexpr auto names = memberNames<Value>();
    std::array<std::size_t, names.size()> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::ranges::sort(order, {}, [&names](std::size_t i) { return names[i]; });
    return order;
}

template <class Type>
void writeMember(JsonWriter& json, std::string_view name, const Type& value) {
    json.key(name);
    write(json, value);
}

template <class Type>
void writeMember(JsonWriter& json, std::string_view name, const std::optional<Type>& value) {
    if (value)
        writeMember(json, name, *value);
}

template <class Value>
void writeRecord(JsonWriter& json, const Value& value) {
    static constexpr auto order = sortedMembers<Value>();
    json.beginObject();
    [&]<std::size_t... Place>(std::index_sequence<Place...>) {
        const auto one = [&](const auto& member) { writeMember(json, member.name, value.*member.place); };
        (one(std::get<order[Place]>(Form<Value>::members)), ...);
    }
    (std::make_index_sequence<order.size()>());
    json.endObject();
}

inline void writeValue(JsonWriter& json, bool value) {
    json.boolean(value);
}

inline void writeValue(JsonWriter& json, std::int64_t value) {
    json.integer(value);
}

inline void writeValue(JsonWriter& json, std::string_view value) {
    json.text(value);
}

template <class Element>
void writeValue(JsonWriter& json, const std::vector<Element>& elements) {
    json.beginArray();
    for (const Element& element : elements)
        write(json, element);
    json.endArray();
}

/// Maps are sorted by their keys already.
template <class Element>
void writeValue(JsonWriter& json, const std::map<std::string, Element, std::less<>>& map) {
    json.beginObject();
    for (const auto& [name, element] : map)
        writeMember(json, name, element);
    json.endObject();
}

} // namespace detail

template <class Value>
void write(JsonWriter& json, const Value& value) {
    if constexpr (Record<Value>)
        detail::writeRecord(json, value);
    else if constexpr (StoredAsAnother<Value>)
        write(json, Form<Value>::stored(value));
    else
        detail::writeValue(json, value);
}

} // namespace quillon::Json
