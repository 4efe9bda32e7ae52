/// @file
/// What the fuzz targets have in common.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace nurl::fuzz {

/// Ends the program, so that the fuzzer keeps the input, when a promise is broken.
inline void require(bool kept, const char* promise) {
    if (kept) return;
    static_cast<void>(std::fprintf(stderr, "broken promise: %s\n", promise));
    std::abort();
}

}  // namespace nurl::fuzz
