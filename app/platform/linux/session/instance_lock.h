#pragma once

#include "session_kind.h"

#include <quillon/kit/base/file_descriptor.h>

#include <chrono>
#include <filesystem>

namespace quillon {

/// The file that tells of the running program where no bus can: one for each display of the user's. Empty
/// when the session has no place for such files.
std::filesystem::path instanceLockFile(const Environment& environment = processEnvironment);

/// The right to be the program of this display, held by at most one process. The system takes it back when
/// that process ends, however it ends.
class InstanceLock {
  public:
    /// `file` need not exist. With an empty path, or where it cannot be made, everybody has the right.
    explicit InstanceLock(const std::filesystem::path& file);

    /// Whether this process has the right now.
    bool take();
    /// The same; a process that has it is asked to end (SIGTERM), for which it has `limit`.
    bool takeOver(std::chrono::milliseconds limit);

  private:
    FileDescriptor m_file;
};

} // namespace quillon
