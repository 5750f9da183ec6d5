#pragma once

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

/// Runs `work` in a process of its own; whether it returned true.
inline bool succeedsInChild(const std::function<bool()>& work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work() ? 0 : 1);
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace quillon
