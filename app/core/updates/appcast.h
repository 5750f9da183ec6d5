#pragma once

#include "release.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// The list of a program's releases in the format of the Sparkle framework: RSS with elements and attributes
/// of its own. What installs releases (files, sizes, signatures, versions of macOS) is passed over.
namespace Appcast {

/// Items beyond these are not read.
inline constexpr std::size_t mostItems = 200;

/// The releases that are for everybody on this system, in the order of the list. Left out are those without a
/// version that can be read, those of other channels than the default one, and those whose file is for
/// another system by name. Absent when the bytes are no whole appcast, are more than `largestFeed`, or
/// declare a document type: nobody needs entities of their own there.
std::optional<std::vector<Release>> read(std::string_view bytes);

} // namespace Appcast

/// The newest one that is newer than `own`; absent when there is none.
std::optional<Release> newerRelease(const std::vector<Release>& releases, const ReleaseVersion& own);

} // namespace quillon
