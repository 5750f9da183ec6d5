#pragma once

#include "app_facts.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillon {

/// What the system tells of a process. Whatever cannot be read is "". `processes` is the folder of the
/// running processes, /proc. Never waits for another process.
ProcessFacts readProcess(std::int64_t pid, const std::string& processes);

/// Whether a program of this file name only runs other programs' texts: "python3.11", "bash", "java".
bool isInterpreter(std::string_view program);

/// The application's name in the text of a Flatpak's /.flatpak-info: `name` of the group `[Application]`.
std::string flatpakIDFrom(std::string_view info);
/// The desktop-entry id of a Snap from its confinement label: "snap.gimp.gimp (enforce)" gives "gimp_gimp".
std::string snapEntryIDFrom(std::string_view label);
/// The application's id from the text of a process's `cgroup` file, by systemd's naming of desktop units:
/// "…/app-gnome-org.gnome.gedit-1234.scope" gives "org.gnome.gedit".
std::string controlGroupIDFrom(std::string_view cgroup);

} // namespace quillon
