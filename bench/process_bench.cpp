// Whole runs of gms-inp, from starting the process to its end. The floors do what no run can do
// without, and where they handle a large file they are processes too (process_floor.cpp).
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include "decks.hpp"
#include "schema/loader.hpp"

namespace schema = nurl::input::gamess::schema;

namespace {

constexpr const char* schema_file = NURL_BENCH_SCHEMA;
constexpr const char* tool = NURL_BENCH_TOOL;
constexpr const char* floor_program = NURL_BENCH_PROCESS_FLOOR;
constexpr std::size_t large = 20'000'000;
constexpr std::size_t atom_bytes = 65;

/// A folder with the decks, gone at the end of the program.
class Workplace {
public:
    Workplace() {
        std::filesystem::create_directory(folder_);
        std::ofstream(path("small.inp")) << nurl::bench::optimisation_deck();
        std::ofstream(path("orbitals.inp")) << nurl::bench::orbital_deck(large);
        std::ofstream(path("list.inp")) << nurl::bench::list_deck(large);
        std::ofstream(path("atoms.inp")) << nurl::bench::atom_deck(large / atom_bytes);
        setenv("NURL_GMS_INP_SCHEMA_YAML", schema_file, 1);
    }

    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;
    ~Workplace() { std::filesystem::remove_all(folder_); }

    [[nodiscard]] std::string path(const std::string& name) const { return folder_ / name; }

private:
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("gms-inp-bench-" + std::to_string(::getpid()));
};

const Workplace& workplace() {
    static const Workplace place;
    return place;
}

/// Runs a program without showing what it prints. Throws when it ends with a status above `worst`.
void run(const char* program, std::vector<std::string> arguments, int worst = 0) {
    std::vector<char*> pointers;
    arguments.insert(arguments.begin(), program);
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int failure =
        posix_spawn(&process, pointers.front(), &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (failure != 0 || waitpid(process, &status, 0) != process || !WIFEXITED(status) ||
        WEXITSTATUS(status) > worst)
        throw std::runtime_error(std::string{program} + " did not run as it should");
}

void check_small_deck_process(benchmark::State& state) {
    for (auto _ : state) run(tool, {"check", workplace().path("small.inp")});
}

void check_small_deck_process_floor(benchmark::State& state) {
    for (auto _ : state) {
        run(tool, {"--version"});
        benchmark::DoNotOptimize(schema::load_schema(schema_file));
    }
}

void set_in_large_deck_process(benchmark::State& state) {
    for (auto _ : state)
        run(tool, {"set", workplace().path("orbitals.inp"), "CONTRL.SCFTYP=UHF", "-o",
                   workplace().path("edited.inp")});
}

void set_in_large_deck_process_floor(benchmark::State& state) {
    for (auto _ : state)
        run(floor_program,
            {"set", workplace().path("orbitals.inp"), workplace().path("copied.inp")});
}

void check_large(benchmark::State& state, const std::string& deck) {
    constexpr int with_findings = 1;
    for (auto _ : state) run(tool, {"check", workplace().path(deck)}, with_findings);
}

void check_large_floor(benchmark::State& state, const std::string& deck) {
    for (auto _ : state) run(floor_program, {"check", workplace().path(deck)});
}

void check_orbitals_process(benchmark::State& state) { check_large(state, "orbitals.inp"); }
void check_orbitals_process_floor(benchmark::State& state) {
    check_large_floor(state, "orbitals.inp");
}
void check_list_process(benchmark::State& state) { check_large(state, "list.inp"); }
void check_list_process_floor(benchmark::State& state) { check_large_floor(state, "list.inp"); }
void check_atoms_process(benchmark::State& state) { check_large(state, "atoms.inp"); }
void check_atoms_process_floor(benchmark::State& state) { check_large_floor(state, "atoms.inp"); }

BENCHMARK(check_small_deck_process)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_small_deck_process_floor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(set_in_large_deck_process)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(set_in_large_deck_process_floor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_orbitals_process)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_orbitals_process_floor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_list_process)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_list_process_floor)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_atoms_process)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(check_atoms_process_floor)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
