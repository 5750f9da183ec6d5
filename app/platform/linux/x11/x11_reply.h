#pragma once

#include <cstdlib>
#include <memory>

namespace quillon {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply or an event of the X server; empty when there was none (an error, no answer in time, no server).
template <class T>
using X11Reply = std::unique_ptr<T, FreeDeleter>;

} // namespace quillon
