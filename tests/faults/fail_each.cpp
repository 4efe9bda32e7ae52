#include "faults/fail_each.hpp"

#include <doctest/doctest.h>

namespace nurl::test {

void judge(const Attempt& attempt) {
    CAPTURE(attempt.occurrence);
    const bool is_lasting = attempt.shortage == Shortage::Lasting;
    CAPTURE(is_lasting);
    CAPTURE(attempt.threw);
    CHECK(attempt.left_as_it_should_be);
    CHECK(attempt.blocks_left_behind == 0);
    if (!attempt.met) CHECK_FALSE(attempt.threw);
}

}  // namespace nurl::test
