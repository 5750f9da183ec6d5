#include "toolkit_libraries.h"

#include <fstream>
#include <string_view>

namespace quillon {

namespace {

constexpr int mostMappings = 50'000; // far more files than any program has mapped

bool names(std::string_view mapping, std::string_view library) {
    return mapping.find(library) != std::string_view::npos;
}

} // namespace

ToolkitLibraries toolkitLibraries(std::int64_t pid, const std::string& processes) {
    std::ifstream maps(processes + "/" + std::to_string(pid) + "/maps");
    ToolkitLibraries found;
    std::string line;
    for (int read = 0; read < mostMappings && std::getline(maps, line); ++read) {
        found.gtk2 = found.gtk2 || names(line, "/libgtk-x11-2.0.so");
        found.qt = found.qt || names(line, "/libQt5Gui.so") || names(line, "/libQt6Gui.so");
    }
    return found;
}

} // namespace quillon
