// Runs the benchmarks with a heap that keeps what it got. By default the allocator gives large
// blocks back to the system, when depends on what ran before, and the same work then costs twice as
// much on one side of a ratio as on the other.
#include <limits>
#include <malloc.h>

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
