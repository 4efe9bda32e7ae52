#include "growth/measure.hpp"

#include <valgrind/callgrind.h>

namespace nurl::bench::growth {

void begin_counting() noexcept { CALLGRIND_TOGGLE_COLLECT; }

void end_counting() noexcept { CALLGRIND_TOGGLE_COLLECT; }

void write_counts(const std::string& label) { CALLGRIND_DUMP_STATS_AT(label.c_str()); }

}  // namespace nurl::bench::growth
