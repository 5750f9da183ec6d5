#pragma once

#include <cstddef>
#include <string>

namespace quillon::Json {

/// Why a text could not be read as a value.
struct Fault {
    std::size_t offset =
        0; ///< bytes before what is wrong: a token, the end of an object that lacks something, …
    std::string reason; ///< `"clicked" must be a whole number`; quotes nothing of the text

    /// "byte 312: …", counted from 0.
    std::string message() const;

    bool operator==(const Fault&) const = default;
};

} // namespace quillon::Json
