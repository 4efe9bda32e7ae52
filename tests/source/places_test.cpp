#include <optional>
#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

TEST_CASE("A byte is found by line and column") {
    const Deck deck{"ab\r\nc\rd\n $SCF\n  A=1\n $END\nx"};
    CHECK(deck.location(0) == Position{1, 1});
    CHECK(deck.location(1) == Position{1, 2});
    CHECK(deck.location(4) == Position{2, 1});
    CHECK(deck.location(6) == Position{3, 1});
    CHECK(deck.location(9) == Position{4, 2});
    CHECK(deck.location(16) == Position{5, 3});
    CHECK(deck.location(deck.text().size()) == Position{7, 2});
    CHECK(deck.location(999) == Position{7, 2});
}

TEST_CASE("The place behind the last line end is on a line of its own") {
    CHECK(Deck{"a\r"}.location(2) == Position{2, 1});
    CHECK(Deck{"a\r\n"}.location(3) == Position{2, 1});
    CHECK(Deck{"a\n"}.location(2) == Position{2, 1});
}

TEST_CASE("A text without a byte begins at line 1 and column 1") {
    CHECK(Deck{""}.location(0) == Position{1, 1});
}

TEST_CASE("A group is found where its first visible copy begins") {
    const Deck deck{"$SCF $END\n $SCF $END\n $SCF $END\n"};
    CHECK(deck.location("scf") == Position{2, 2});
    CHECK(deck.location("GUESS") == std::nullopt);
}

TEST_CASE("A keyword is found where the value that counts stands") {
    const Deck deck{" $SCF A=1 $END\n $SCF\n   A=2 $END\n"};
    CHECK(deck.location("SCF", "A") == Position{3, 4});
    CHECK(deck.location("SCF", "B") == std::nullopt);
}

}  // namespace nurl::input::gamess::source
