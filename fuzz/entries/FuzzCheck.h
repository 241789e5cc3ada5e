#pragma once
// A broken invariant must stop the run so that the fuzzer keeps the input.

#include <cstdio>
#include <cstdlib>

#define FUZZ_CHECK(cond)                                                                  \
    do {                                                                                  \
        if (!(cond)) {                                                                    \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #cond); \
            std::abort();                                                                 \
        }                                                                                 \
    } while (0)
