#include "save_failure.h"

namespace quillon {

std::string SaveFailure::message() const {
    const auto what = [this] {
        switch (step) {
        case Step::folder: return "could not make the folder: ";
        case Step::encoding: return "could not encode the value: ";
        case Step::writing: break;
        }
        return "could not write the file: ";
    };
    return what() + code.message();
}

} // namespace quillon
