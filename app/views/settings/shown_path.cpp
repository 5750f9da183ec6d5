#include "shown_path.h"

#include <quillon/app/views/components/foreign_text.h>

namespace quillon {

QString shownPath(const std::filesystem::path& path, const std::filesystem::path& home) {
    const std::filesystem::path inHome = path.lexically_relative(home);
    const bool isInHome = !home.empty() && !inHome.empty() && *inHome.begin() != "..";
    if (!isInHome)
        return foreignLine(path.string());
    return foreignLine((std::filesystem::path("~") / (inHome == "." ? "" : inHome)).string());
}

} // namespace quillon
