#include "query_tokens.h"

#include <quillon/kit/base/unicode.h>

#include <utility>

namespace quillon {

std::vector<std::string> splitAtWhitespace(std::string_view text) {
    std::vector<std::string> tokens;
    std::string token;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = unicode::firstScalarLength(text.substr(position));
        const std::string_view scalar = text.substr(position, length);
        position += length;
        if (!unicode::isWhitespace(scalar))
            token += scalar;
        else if (!token.empty())
            tokens.push_back(std::exchange(token, {}));
    }
    if (!token.empty())
        tokens.push_back(std::move(token));
    return tokens;
}

} // namespace quillon
