#pragma once

#include "json_fault.h"
#include "json_value_readers.h"
#include "json_write.h"
#include "stored_forms.h"

#include <quillon/kit/base/outcome.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// Values as JSON texts, by their forms (see json_form.h). Writing: one line, keys sorted, "/" inside text
/// escaped, other characters as they are. Reading: strict about shapes, types and missing keys, lenient about
/// unknown ones.
namespace quillon::Json {

/// Absent when a text is not UTF-8.
template <Storable Value>
std::optional<std::string> encode(const Value& value) {
    JsonWriter json;
    write(json, value);
    return std::move(json).take();
}

/// What the text says, or what is wrong with it.
template <Storable Value>
Outcome<Value, Fault> tryDecode(std::string_view text) {
    ValueReader<Value> reader;
    if (std::optional<Fault> fault = parse(text, reader))
        return *std::move(fault);
    return reader.take();
}

/// What the text says; absent when anything is wrong with it.
template <Storable Value>
std::optional<Value> decode(std::string_view text) {
    return tryDecode<Value>(text).value();
}

// Made once, in json_codec.cpp.
extern template std::optional<std::string> encode(const AppSheet&);
extern template std::optional<std::string> encode(const SheetMap&);
extern template std::optional<std::string> encode(const UsageBook&);
extern template std::optional<std::string> encode(const AnnotationBook&);
extern template std::optional<std::string> encode(const WeekBook&);
extern template Outcome<AppSheet, Fault> tryDecode<AppSheet>(std::string_view);
extern template Outcome<SheetMap, Fault> tryDecode<SheetMap>(std::string_view);
extern template Outcome<UsageBook, Fault> tryDecode<UsageBook>(std::string_view);
extern template Outcome<AnnotationBook, Fault> tryDecode<AnnotationBook>(std::string_view);
extern template Outcome<WeekBook, Fault> tryDecode<WeekBook>(std::string_view);

} // namespace quillon::Json
