#include "json_codec.h"

namespace quillon::Json {

template std::optional<std::string> encode(const AppSheet&);
template std::optional<std::string> encode(const SheetMap&);
template std::optional<std::string> encode(const UsageBook&);
template std::optional<std::string> encode(const AnnotationBook&);
template std::optional<std::string> encode(const WeekBook&);
template Outcome<AppSheet, Fault> tryDecode<AppSheet>(std::string_view);
template Outcome<SheetMap, Fault> tryDecode<SheetMap>(std::string_view);
template Outcome<UsageBook, Fault> tryDecode<UsageBook>(std::string_view);
template Outcome<AnnotationBook, Fault> tryDecode<AnnotationBook>(std::string_view);
template Outcome<WeekBook, Fault> tryDecode<WeekBook>(std::string_view);

} // namespace quillon::Json
