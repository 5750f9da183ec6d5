#include "program_error.h"

#include <cstdio>
#include <cstdlib>

namespace quillon {

void programError(std::string_view rule) {
    std::fputs("quillon: program error: ", stderr);
    std::fwrite(rule.data(), 1, rule.size(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
    std::abort();
}

} // namespace quillon
