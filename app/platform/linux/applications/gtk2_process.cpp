#include "gtk2_process.h"

#include <fstream>

namespace quillon {

bool usesGtk2(std::int64_t pid, const std::string& processes) {
    constexpr int mostMappings = 50'000; // far more files than any program has mapped
    std::ifstream maps(processes + "/" + std::to_string(pid) + "/maps");
    std::string line;
    for (int read = 0; read < mostMappings && std::getline(maps, line); ++read)
        if (line.find("/libgtk-x11-2.0.so") != std::string::npos)
            return true;
    return false;
}

} // namespace quillon
