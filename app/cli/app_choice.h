#pragma once

#include <quillon/app/ports/application_list.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace quillon {

/// The application that a user means by `name`: the one with this id or display name, else the one whose id
/// ends in "." and the name, else the one that has it as another name. Upper and lower case are the same.
/// Absent when none is called so.
std::optional<RunningApp> appCalled(std::string_view name, std::span<const ListedApp> apps);

/// The first application of the process; absent when there is none.
std::optional<RunningApp> appOfProcess(std::int64_t pid, std::span<const ListedApp> apps);

} // namespace quillon
