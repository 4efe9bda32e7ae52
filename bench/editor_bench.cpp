// Editing. What surrounds a group must not matter, so the floor of an edit is the same edit in a
// small deck.
#include <string>
#include <unordered_map>

#include <benchmark/benchmark.h>

#include "decks.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace gamess = nurl::input::gamess;

namespace {

constexpr std::size_t large = 20'000'000;
constexpr std::size_t small = 1000;
constexpr std::size_t keywords = 100'000;

gamess::InputEditor editor_of(const std::string& text) {
    return gamess::InputEditor{gamess::parse_string(text).input};
}

void set_and_get(benchmark::State& state, std::size_t bytes) {
    gamess::InputEditor editor =
        editor_of(" $STATPT NSTEP=20 OPTTOL=0.0001 $END\n" + nurl::bench::orbital_deck(bytes));
    for (auto run : state) {
        editor.set_keyword("STATPT", "NSTEP", "50");
        benchmark::DoNotOptimize(editor.get_keyword("STATPT", "NSTEP"));
    }
}

void set_and_get_in_large_deck(benchmark::State& state) { set_and_get(state, large); }

void set_and_get_in_large_deck_floor(benchmark::State& state) { set_and_get(state, small); }

void list_keywords(benchmark::State& state) {
    const gamess::InputEditor editor = editor_of(nurl::bench::wide_group_deck(keywords));
    for (auto run : state) benchmark::DoNotOptimize(editor.list_keywords("FORCE"));
}

void list_keywords_floor(benchmark::State& state) {
    const gamess::GamessInput deck =
        gamess::parse_string(nurl::bench::wide_group_deck(keywords)).input;
    for (auto run : state) {
        std::unordered_map<std::string, std::size_t> places;
        for (const gamess::KeyValue& entry : deck.sections.front().entries)
            places.try_emplace(entry.key, places.size());
        benchmark::DoNotOptimize(places);
    }
}

BENCHMARK(set_and_get_in_large_deck);
BENCHMARK(set_and_get_in_large_deck_floor);
BENCHMARK(list_keywords)->Unit(benchmark::kMillisecond);
BENCHMARK(list_keywords_floor)->Unit(benchmark::kMillisecond);

}  // namespace
