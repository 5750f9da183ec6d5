#include "load_failure.h"

namespace quillon {

std::string LoadFailure::message() const {
    switch (kind) {
    case Kind::absent: return "there is no file";
    case Kind::unreadable: return "could not read the file: " + code.message();
    case Kind::broken: break;
    }
    return fault.message();
}

} // namespace quillon
