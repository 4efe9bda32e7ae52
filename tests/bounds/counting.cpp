// The families of bench/growth count instructions with these functions, and here bytes.
#include "bounds/counting.hpp"

#include <algorithm>

#include "bounds/heap.hpp"
#include "growth/measure.hpp"

namespace nurl::test {

namespace {

struct Count {
    std::size_t begin = 0;
    std::size_t most = 0;
};

Count& count() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the functions below take
    // no argument
    static constinit Count the_one;
    return the_one;
}

}  // namespace

std::size_t heap_used_by(const std::function<void()>& action) {
    count().most = 0;
    action();
    return count().most;
}

}  // namespace nurl::test

namespace nurl::bench::growth {

void begin_counting() noexcept {
    test::forget_peak();
    test::count().begin = test::live_bytes();
}

void end_counting() noexcept {
    test::Count& count = test::count();
    count.most = std::max(count.most, test::peak_bytes() - count.begin);
}

}  // namespace nurl::bench::growth
