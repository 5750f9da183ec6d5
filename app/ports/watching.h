#pragma once

namespace quillon {

/// Which of the user's doings are noticed at this moment.
struct Watching {
    bool holds = false;  ///< of the trigger key
    bool clicks = false; ///< on menu commands
    bool typing = false; ///< of shortcuts

    bool operator==(const Watching&) const = default;
};

} // namespace quillon
