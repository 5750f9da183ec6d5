#pragma once

#include <quillon/kit/base/program_error.h>

/// What must hold for every input; a broken law ends the fuzzer's run.
#define QUILLON_LAW(condition)                                                                               \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            ::quillon::programError("broken law: " #condition);                                              \
    } while (false)
