#pragma once

#include <string_view>

/// The names of the files in the folder of what was learned.
namespace quillon::LearnedFiles {

inline constexpr const char* usage = "usage.json"; ///< a UsageBook
inline constexpr const char* notes = "notes.json"; ///< an AnnotationBook
inline constexpr const char* menus = "menus.json"; ///< a SheetMap
inline constexpr const char* weeks = "weeks.json"; ///< a WeekBook

/// Stands behind the name of a file that could not be made out and was kept beside a new one; "-2" and so on
/// may follow.
inline constexpr std::string_view setAsideMark = ".broken";

} // namespace quillon::LearnedFiles
