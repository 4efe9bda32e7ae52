// Reading decks. Each floor does what no reader can do without: it finds the lines and makes the
// strings and numbers of the document, without asking what they are for.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "decks.hpp"
#include "lines.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace gamess = nurl::input::gamess;
using nurl::bench::for_each_line;

namespace {

constexpr std::size_t orbital_bytes = 20'000'000;
constexpr std::size_t atoms = 100'000;
constexpr std::size_t keyword_bytes = 5'000'000;

void parse(benchmark::State& state, const std::string& text) {
    for (auto run : state) benchmark::DoNotOptimize(gamess::parse_string(text));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void parse_orbitals(benchmark::State& state) {
    parse(state, nurl::bench::orbital_deck(orbital_bytes));
}

void parse_orbitals_floor(benchmark::State& state) {
    const std::string text = nurl::bench::orbital_deck(orbital_bytes);
    for (auto run : state) {
        std::vector<std::string> lines;
        for_each_line(text, [&lines](std::string_view line) { lines.emplace_back(line); });
        benchmark::DoNotOptimize(lines);
    }
}

void parse_atoms(benchmark::State& state) { parse(state, nurl::bench::atom_deck(atoms)); }

/// Splits a line into the five words of an atom.
std::array<std::string_view, 5> five_words(std::string_view line) {
    std::array<std::string_view, 5> words;
    for (std::string_view& word : words) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        word = line.substr(0, line.find(' '));
        line.remove_prefix(word.size());
    }
    return words;
}

double number_in(std::string_view word) {
    double value = 0.0;
    std::from_chars(word.data(), word.data() + word.size(), value);
    return value;
}

void parse_atoms_floor(benchmark::State& state) {
    const std::string text = nurl::bench::atom_deck(atoms);
    for (auto run : state) {
        std::vector<gamess::AtomRecord> records;
        for_each_line(text, [&records](std::string_view line) {
            const auto words = five_words(line);
            gamess::AtomRecord& atom = records.emplace_back();
            atom.symbol = words[0];
            atom.nuclear_charge = number_in(words[1]);
            atom.x = number_in(words[2]);
            atom.y = number_in(words[3]);
            atom.z = number_in(words[4]);
        });
        benchmark::DoNotOptimize(records);
    }
}

void parse_keywords(benchmark::State& state) {
    parse(state, nurl::bench::keyword_deck(keyword_bytes));
}

/// Every pair stands in 16 columns: a blank, six of the key, `=`, eight of the value.
void parse_keywords_floor(benchmark::State& state) {
    const std::string text = nurl::bench::keyword_deck(keyword_bytes);
    for (auto run : state) {
        std::vector<gamess::KeyValue> entries;
        for_each_line(text, [&entries](std::string_view line) {
            for (std::size_t at = 0; at + 16 <= line.size(); at += 16) {
                gamess::KeyValue& entry = entries.emplace_back();
                entry.key = line.substr(at + 1, 6);
                for (char& c : entry.key)
                    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
                entry.value = line.substr(at + 8, 8);
            }
        });
        benchmark::DoNotOptimize(entries);
    }
}

void parse_optimisation(benchmark::State& state) { parse(state, nurl::bench::optimisation_deck()); }

/// A copy allocates what the document holds and reads nothing.
void parse_optimisation_floor(benchmark::State& state) {
    const gamess::ParseResult read = gamess::parse_string(nurl::bench::optimisation_deck());
    for (auto run : state) {
        gamess::ParseResult copy = read;
        benchmark::DoNotOptimize(copy);
    }
}

BENCHMARK(parse_orbitals)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_orbitals_floor)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_atoms)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_atoms_floor)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_keywords)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_keywords_floor)->Unit(benchmark::kMillisecond);
BENCHMARK(parse_optimisation)->Unit(benchmark::kMicrosecond);
BENCHMARK(parse_optimisation_floor)->Unit(benchmark::kMicrosecond);

}  // namespace
