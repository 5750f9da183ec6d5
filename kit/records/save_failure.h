#pragma once

#include <string>
#include <system_error>

namespace quillon {

/// Why a file could not be saved.
struct SaveFailure {
    enum class Step {
        folder,   ///< the folder could not be made
        encoding, ///< the value has text that is not UTF-8
        writing,  ///< the file could not be written
    };
    Step step = Step::writing;
    std::error_code code;

    /// One line for a log: "could not write the file: No space left on device".
    std::string message() const;

    bool operator==(const SaveFailure&) const = default;
};

} // namespace quillon
