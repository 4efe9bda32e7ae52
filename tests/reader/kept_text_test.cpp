// The second walk finds what is missing: without this, the tests that rely on it prove nothing.
#include "reader/kept_text.hpp"

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

constexpr std::string_view text =
    "$PCM words SOLVNT=WATER IEF(1) = -10 ! comment\n$END\n"
    "$DATA\nTitle\nC1\n1 O 8.0D+00 0.0 0.0 0.1 x\n S 3\n $END\n";

}  // namespace

TEST_CASE("Nothing is missing in a document that holds the text") {
    GamessInput deck;
    deck.sections = {{"PCM", {{"SOLVNT", "Water"}, {"IEF(1)", "-10 ! comment"}}, {"words"}}};
    deck.has_data = true;
    deck.title = "Title";
    deck.point_group = "C1";
    deck.atoms = {{"O", 8.0, 0.0, 0.0, 0.1}};
    deck.data_lines = {" S 3", " "};
    CHECK(lost_text(text, deck) == Lines{});
}

TEST_CASE("A document that lacks a part of a group is found out") {
    GamessInput deck = read_silently(text);
    CHECK(lost_text(text, deck) == Lines{});
    GamessInput changed = deck;
    changed.sections[0].raw_lines.clear();
    CHECK(lost_text(text, changed) == Lines{"$PCM differs in 'WORDS'"});
    changed = deck;
    changed.sections[0].entries[0].value = "WATERS";
    CHECK(lost_text(text, changed) == Lines{"$PCM differs in 'WATER'", "$PCM differs in 'WATERS'"});
    changed = deck;
    changed.sections[0].entries.push_back({"A", "1"});
    CHECK(lost_text(text, changed).size() == 3);
    changed = deck;
    changed.sections[0].name = "SCF";
    CHECK(lost_text(text, changed) == Lines{"$PCM is kept as $SCF"});
    changed.sections.clear();
    CHECK(lost_text(text, changed) == Lines{"$PCM is missing"});
}

TEST_CASE("A document that lacks a part of the molecule is found out") {
    const GamessInput deck = read_silently(text);
    GamessInput changed = deck;
    changed.title = "title";
    CHECK(lost_text(text, changed) == Lines{"the title is 'title'"});
    changed = deck;
    changed.point_group.clear();
    CHECK(lost_text(text, changed) == Lines{"the point group is ''"});
    changed = deck;
    changed.atoms[0].z = 0.2;
    CHECK(lost_text(text, changed) == Lines{"the atoms differ"});
    changed = deck;
    changed.data_lines.pop_back();
    CHECK(lost_text(text, changed) == Lines{"the lines of $DATA differ"});
}

TEST_CASE("A coordinate too small for a number in memory is a zero to both readings") {
    const std::string tiny = "$DATA\nTitle\nC1\nH 1.0 0.0 0.0 1e-999\nH 1.0 0.0 0.0 1e999\n $END\n";
    const GamessInput deck = read_silently(tiny);
    CHECK(deck.atoms.size() == 1);
    CHECK(lost_text(tiny, deck) == Lines{});
}
