#include "paths.h"

namespace quillon {

namespace {

std::filesystem::path
baseFolder(const Environment& environment, const char* variable, const std::filesystem::path& inHome) {
    // A relative path is to be ignored, says the base directory specification.
    if (std::filesystem::path chosen = environment(variable); chosen.is_absolute())
        return chosen;
    const std::filesystem::path home = environment("HOME");
    return home.is_absolute() ? home / inHome : std::filesystem::path();
}

std::filesystem::path below(const std::filesystem::path& base, const std::filesystem::path& rest) {
    return base.empty() ? base : base / rest;
}

} // namespace

std::filesystem::path configHome(const Environment& environment) {
    return baseFolder(environment, "XDG_CONFIG_HOME", ".config");
}

std::filesystem::path dataHome(const Environment& environment) {
    return baseFolder(environment, "XDG_DATA_HOME", ".local/share");
}

std::filesystem::path settingsFile(const Environment& environment) {
    return below(configHome(environment), std::filesystem::path(applicationID) / "settings.ini");
}

std::filesystem::path dataFolder(const Environment& environment) {
    return below(dataHome(environment), applicationID);
}

} // namespace quillon
