#include "app_choice.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <string>

namespace quillon {

namespace {

template <class Rule>
std::optional<RunningApp> firstApp(std::span<const RunningApp> apps, Rule rule) {
    const auto found = std::ranges::find_if(apps, rule);
    return found == apps.end() ? std::nullopt : std::optional(*found);
}

} // namespace

std::optional<RunningApp> appCalled(std::string_view name, std::span<const RunningApp> apps) {
    const std::string wanted = unicode::toLower(name);
    if (wanted.empty())
        return std::nullopt;
    const auto exact = firstApp(apps, [&](const RunningApp& app) {
        return unicode::toLower(app.bundleID) == wanted || unicode::toLower(app.name) == wanted;
    });
    if (exact)
        return exact;
    const std::string ending = "." + wanted;
    return firstApp(
        apps, [&](const RunningApp& app) { return unicode::toLower(app.bundleID).ends_with(ending); });
}

std::optional<RunningApp> appOfProcess(std::int64_t pid, std::span<const RunningApp> apps) {
    return firstApp(apps, [pid](const RunningApp& app) { return app.pid == pid; });
}

} // namespace quillon
