#include "json_value_readers.h"

namespace quillon::Json {

std::string ValueReader<std::int64_t>::expected() const {
    if (range.least == Range().least && range.most == Range().most)
        return "a whole number";
    return "a whole number from " + std::to_string(range.least) + " to " + std::to_string(range.most);
}

} // namespace quillon::Json
