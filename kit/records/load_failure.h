#pragma once

#include "json_fault.h"

#include <string>
#include <system_error>

namespace quillon {

/// Why a file could not be loaded.
struct LoadFailure {
    enum class Kind {
        absent,     ///< there is no file
        unreadable, ///< it could not be read, is too large, or is no ordinary file
        broken,     ///< it holds something else
    };
    Kind kind = Kind::absent;
    std::error_code code = {}; ///< why there was nothing to decode; none where it is broken
    Json::Fault fault = {};    ///< what is wrong with its text, where it is broken

    /// One line for a log: "could not read the file: Permission denied", "byte 312: …".
    std::string message() const;

    bool operator==(const LoadFailure&) const = default;
};

} // namespace quillon
