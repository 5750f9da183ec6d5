#pragma once

#include "annotations.h"
#include "usage.h"
#include <quillon/kit/menu/app_sheet.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The sheets read so far, by bundle identifier.
using SheetMap = std::map<std::string, AppSheet, std::less<>>;

/// The stored forms. Writing: one line, keys sorted, "/" inside text escaped, other characters as they are,
/// dates in ISO 8601 with whole seconds in UTC. Absent when a text is not UTF-8. Reading: strict about
/// shapes, types and missing keys, lenient about unknown ones; absent for anything else.
namespace Json {

std::optional<std::string> encode(const AppSheet& sheet);
std::optional<std::string> encode(const SheetMap& sheets);
std::optional<std::string> encode(const UsageBook& book);
std::optional<std::string> encode(const AnnotationBook& book);

/// `Value` is one of AppSheet, SheetMap, UsageBook, AnnotationBook.
template <class Value>
std::optional<Value> decode(std::string_view text);

template <>
std::optional<AppSheet> decode<AppSheet>(std::string_view text);
template <>
std::optional<SheetMap> decode<SheetMap>(std::string_view text);
template <>
std::optional<UsageBook> decode<UsageBook>(std::string_view text);
template <>
std::optional<AnnotationBook> decode<AnnotationBook>(std::string_view text);

} // namespace Json

} // namespace quillon
