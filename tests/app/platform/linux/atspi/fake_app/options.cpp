#include "options.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string_view>

namespace quillon::fake_app {
namespace {

using Setter = std::function<void(Options&, const char*)>;

std::size_t number(const char* text) {
    return std::strtoul(text, nullptr, 10);
}

const std::map<std::string_view, Setter> valued{
    {"--recording", [](Options& o, const char* v) { o.recording = v; }},
    {"--items", [](Options& o, const char* v) { o.items = number(v); }},
    {"--toolkit", [](Options& o, const char* v) { o.toolkit = v; }},
    {"--name", [](Options& o, const char* v) { o.name = v; }},
    {"--window", [](Options& o, const char* v) { o.windows.emplace_back(v); }},
    {"--dialog", [](Options& o, const char* v) { o.dialogs.emplace_back(v); }},
    {"--point-at", [](Options& o, const char* v) { o.pointedAt.emplace_back(v); }},
    {"--log", [](Options& o, const char* v) { o.log = v; }},
    {"--stop-after", [](Options& o, const char* v) { o.stopAfter = number(v); }},
    {"--exit-after", [](Options& o, const char* v) { o.exitAfter = number(v); }},
    {"--errors-after", [](Options& o, const char* v) { o.errorsAfter = number(v); }},
    {"--mute-path", [](Options& o, const char* v) { o.mutePath = v; }},
    {"--mute-member", [](Options& o, const char* v) { o.muteMember = v; }},
    {"--refuse-name", [](Options& o, const char* v) { o.refusedName = v; }},
    {"--delay", [](Options& o, const char* v) { o.delay = static_cast<int>(number(v)); }},
    {"--title", [](Options& o, const char* v) { o.title = v; }},
    {"--title-bytes", [](Options& o, const char* v) { o.titleBytes = number(v); }},
};

const std::map<std::string_view, std::function<void(Options&)>> plain{
    {"--flat", [](Options& o) { o.isFlat = true; }},
    {"--cycle", [](Options& o) { o.hasCycle = true; }},
    {"--stale-role", [](Options& o) { o.hasStaleRole = true; }},
    {"--invalid-utf8", [](Options& o) { o.hasBrokenText = true; }},
    {"--imagined-bar", [](Options& o) { o.hasImaginedBar = true; }},
    {"--no-menu-bar", [](Options& o) { o.hasMenuBar = false; }},
};

} // namespace

std::optional<Options> parseOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        if (const auto flag = plain.find(argv[i]); flag != plain.end()) {
            flag->second(options);
        } else if (const auto value = valued.find(argv[i]); value != valued.end() && i + 1 < argc) {
            value->second(options, argv[++i]);
        } else {
            std::fprintf(stderr, "quillon-fake-app: what is %s?\n", argv[i]);
            return std::nullopt;
        }
    }
    if (!options.hasMenuBar)
        options.dialogs.emplace_back("Fake");
    else if (options.windows.empty())
        options.windows.emplace_back("Fake");
    return options;
}

} // namespace quillon::fake_app
