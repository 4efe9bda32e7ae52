// Writing decks. The floors put the numbers, or the lines, into a string that is large enough.
#include <array>
#include <charconv>
#include <string>

#include <benchmark/benchmark.h>

#include "decks.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace gamess = nurl::input::gamess;

namespace {

constexpr std::size_t orbital_bytes = 20'000'000;
constexpr std::size_t atoms = 100'000;

void write(benchmark::State& state, const std::string& text) {
    const gamess::GamessInput deck = gamess::parse_string(text).input;
    for (auto run : state) benchmark::DoNotOptimize(deck.to_string());
}

void write_atoms(benchmark::State& state) { write(state, nurl::bench::atom_deck(atoms)); }

void append_number(std::string& text, double value, int decimals) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    text.append(buffer.data(), end.ptr);
}

void write_atoms_floor(benchmark::State& state) {
    const gamess::GamessInput deck = gamess::parse_string(nurl::bench::atom_deck(atoms)).input;
    const std::size_t size = deck.to_string().size();
    for (auto run : state) {
        std::string text;
        text.reserve(size);
        for (const gamess::AtomRecord& atom : deck.atoms) {
            append_number(text, atom.nuclear_charge.value_or(0.0), 1);
            append_number(text, atom.x, 10);
            append_number(text, atom.y, 10);
            append_number(text, atom.z, 10);
        }
        benchmark::DoNotOptimize(text);
    }
}

void write_orbitals(benchmark::State& state) {
    write(state, nurl::bench::orbital_deck(orbital_bytes));
}

void write_orbitals_floor(benchmark::State& state) {
    const gamess::GamessInput deck =
        gamess::parse_string(nurl::bench::orbital_deck(orbital_bytes)).input;
    const gamess::NamedSection& orbitals = deck.sections.back();
    for (auto run : state) {
        std::string text;
        text.reserve(orbital_bytes + 1000);
        for (const std::string& line : orbitals.raw_lines) text += line;
        benchmark::DoNotOptimize(text);
    }
}

BENCHMARK(write_atoms)->Unit(benchmark::kMillisecond);
BENCHMARK(write_atoms_floor)->Unit(benchmark::kMillisecond);
BENCHMARK(write_orbitals)->Unit(benchmark::kMillisecond);
BENCHMARK(write_orbitals_floor)->Unit(benchmark::kMillisecond);

}  // namespace
