#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillon::autostart {

/// An entry that starts a program with the session. `executable` is a name that is found in $PATH, or a path.
std::string entryFor(const std::string& executable);

/// Whether a session starts what the entry names: it is one, it is not switched off, it is meant for this
/// desktop, and its program is there.
bool startsProgram(const std::string& entry);

/// The entry switched on or off, the rest as it is. Absent when it is none.
std::optional<std::string> switched(const std::string& entry, bool on);

/// How an entry names this program: by its name alone where $PATH (`searchPath`) leads to it, else by its
/// path.
std::string nameOf(const std::filesystem::path& executable, std::string_view searchPath);

} // namespace quillon::autostart
