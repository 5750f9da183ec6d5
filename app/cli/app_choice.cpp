#include "app_choice.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <string>

namespace quillon {

namespace {

template <class Rule>
std::optional<RunningApp> firstApp(std::span<const ListedApp> apps, Rule rule) {
    const auto found = std::ranges::find_if(apps, rule);
    return found == apps.end() ? std::nullopt : std::optional(found->app);
}

} // namespace

std::optional<RunningApp> appCalled(std::string_view name, std::span<const ListedApp> apps) {
    const std::string wanted = unicode::toLower(name);
    if (wanted.empty())
        return std::nullopt;
    const auto isWanted = [&wanted](const std::string& called) { return unicode::toLower(called) == wanted; };
    const auto exact = firstApp(apps, [&](const ListedApp& listed) {
        return isWanted(listed.app.bundleID) || isWanted(listed.app.name);
    });
    if (exact)
        return exact;
    const std::string ending = "." + wanted;
    const auto loose = firstApp(apps, [&](const ListedApp& listed) {
        return unicode::toLower(listed.app.bundleID).ends_with(ending);
    });
    if (loose)
        return loose;
    return firstApp(
        apps, [&](const ListedApp& listed) { return std::ranges::any_of(listed.otherNames, isWanted); });
}

std::optional<RunningApp> appOfProcess(std::int64_t pid, std::span<const ListedApp> apps) {
    return firstApp(apps, [pid](const ListedApp& listed) { return listed.app.pid == pid; });
}

} // namespace quillon
