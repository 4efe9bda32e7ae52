// The index of a deck's text, beside finding the ends of its lines.
#include <cstdint>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

#include "decks.hpp"
#include "lines.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace source = nurl::input::gamess::source;

namespace {

constexpr std::size_t orbital_bytes = 20'000'000;

/// A deck takes its text over; the copy that it is given is not measured.
void index_deck(benchmark::State& state) {
    const std::string text = nurl::bench::orbital_deck(orbital_bytes);
    for (auto run : state) {
        state.PauseTiming();
        std::string copy = text;
        state.ResumeTiming();
        source::Deck deck{std::move(copy)};
        benchmark::DoNotOptimize(deck.sections().size());
        state.PauseTiming();
        deck = source::Deck{""};
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void index_deck_floor(benchmark::State& state) {
    const std::string text = nurl::bench::orbital_deck(orbital_bytes);
    for (auto run : state) benchmark::DoNotOptimize(nurl::bench::count_lines(text));
}

void check_deck(benchmark::State& state) {
    const source::Deck deck{nurl::bench::orbital_deck(orbital_bytes)};
    for (auto run : state) benchmark::DoNotOptimize(source::check(deck));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(deck.text().size()));
}

BENCHMARK(index_deck)->Unit(benchmark::kMillisecond);
BENCHMARK(index_deck_floor)->Unit(benchmark::kMillisecond);
BENCHMARK(check_deck)->Unit(benchmark::kMillisecond);

}  // namespace
