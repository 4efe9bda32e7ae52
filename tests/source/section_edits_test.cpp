#include <stdexcept>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

namespace {

std::string after_ensure(const std::string& text, const char* name) {
    Deck deck{text};
    deck.ensure_section(name);
    return deck.text();
}

std::string after_remove(const std::string& text, const char* name) {
    Deck deck{text};
    const bool removed = deck.remove_section(name);
    return removed == (deck.text() != text) ? deck.text() : "the answer does not fit";
}

std::string after_replace(const std::string& text, std::size_t occurrence, const char* group) {
    Deck deck{text};
    try {
        deck.replace_section("vec", occurrence, group);
    } catch (const std::runtime_error& error) {
        return deck.text() == text ? std::string{"refused: "} + error.what() : "changed and threw";
    }
    return deck.text();
}

}  // namespace

TEST_CASE("A new group stands in front of the first $DATA") {
    CHECK(after_ensure(" $SCF $END\nnote\n $DATA\nt\nC1\n $END\n", "guess") ==
          " $SCF $END\nnote\n $GUESS $END\n $DATA\nt\nC1\n $END\n");
}

TEST_CASE("A new group follows letter case and line ends") {
    CHECK(after_ensure(" $data\r\nt\r\nC1\r\n $end\r\n", "GUESS") ==
          " $guess $end\r\n $data\r\nt\r\nC1\r\n $end\r\n");
    CHECK(after_ensure(" $data\nt\nC1\n $end\n", "VEC") == " $VEC\n $END\n $data\nt\nC1\n $end\n");
    CHECK(after_ensure(" $data\nt\nC1\n $end\n", "ecp") == " $ecp\n $end\n $data\nt\nC1\n $end\n");
    CHECK(after_ensure(" $A~{1 $END\n", "SCF") == " $A~{1 $END\n $SCF $END\n");
    CHECK(after_ensure(" $Z~ $END\n $az $END\n", "SCF") == " $Z~ $END\n $az $END\n $scf $end\n");
}

TEST_CASE("A new group stands in front of a $DATA that other groups follow") {
    Deck deck{" $SCF $END\n $DATA\nt\nC1\n $END\n $VEC\n 1\n $END\n"};
    deck.ensure_section("GUESS");
    CHECK(deck.text() == " $SCF $END\n $GUESS $END\n $DATA\nt\nC1\n $END\n $VEC\n 1\n $END\n");
}

TEST_CASE("Every small letter makes a new group small") {
    for (const char letter : {'a', 'z'}) {
        const std::string text = " $" + std::string{letter} + " $END\n";
        Deck deck{text};
        deck.ensure_section("SCF");
        CHECK(deck.text() == text + " $scf $end\n");
    }
}

TEST_CASE("A new group that would hide another one is refused") {
    const std::string text = " $SCF $END $GUESS\n A=1 $END $BASIS $END\n";
    Deck deck{text};
    CHECK_THROWS_WITH_AS(deck.ensure_section("DFT"), "Section cannot be read back: DFT",
                         std::runtime_error);
    CHECK(deck.text() == text);
}

TEST_CASE("A new group is refused where it would be part of an open one") {
    const std::string data = " $DATA\nt\nC1\n $END\n";
    for (const std::string& text :
         {" $SCF A=1\n" + data, " $BASIS $END\n $SCF A=1\n" + data, std::string{" $SCF A=1"}}) {
        CAPTURE(text);
        Deck deck{text};
        CHECK_THROWS_WITH_AS(deck.ensure_section("DFT"), "Section is not closed by $END: SCF",
                             std::runtime_error);
        CHECK(deck.text() == text);
    }
    CHECK(after_ensure(data + " $SCF A=1\n", "DFT") == " $DFT $END\n" + data + " $SCF A=1\n");
}

TEST_CASE("A new group goes on a line of its own behind a text of one byte") {
    Deck deck{"x"};
    deck.ensure_section("SCF");
    CHECK(deck.text() == "x\n $SCF $END\n");
}

TEST_CASE("Without a $DATA a new group goes behind the last one") {
    CHECK(after_ensure("", "SCF") == " $SCF $END\n");
    CHECK(after_ensure("note", "SCF") == "note\n $SCF $END\n");
    CHECK(after_ensure(" $GUESS $END", "SCF") == " $GUESS $END\n $SCF $END\n");
    CHECK(after_ensure(" $GUESS $END ! g\nnote\n", "SCF") ==
          " $GUESS $END ! g\n $SCF $END\nnote\n");
    CHECK(after_ensure("$DATA $END\n", "SCF") == "$DATA $END\n $SCF $END\n");
    CHECK(after_ensure(" $DATAL\nO 8.0\n\n $END\n", "SCF") ==
          " $DATAL\nO 8.0\n\n $END\n $SCF $END\n");
}

TEST_CASE("A group that is there, a blank name and DATA change nothing") {
    for (const char* const name : {"scf", "", " \t", "$", "DATA"}) {
        CAPTURE(name);
        CHECK(after_ensure(" $SCF $END\n", name) == " $SCF $END\n");
    }
}

TEST_CASE("A group that GAMESS does not see is made anew") {
    CHECK(after_ensure("$SCF A=1 $END\n", "SCF") == "$SCF A=1 $END\n $SCF $END\n");
}

TEST_CASE("Removing a group takes all visible copies with their lines") {
    CHECK(after_remove("a\n $SCF $END\nb\n $scf\n A=1\n $end  \nc\n$SCF $END\n", "SCF") ==
          "a\nb\nc\n$SCF $END\n");
    CHECK(after_remove(" $DATA\nt\nC1\n $END\n $SCF $END\n", "data") == " $SCF $END\n");
    CHECK(after_remove(" $SCF $END", "SCF").empty());
    CHECK(after_remove(" $SCF\r\n $END\r\nx", "SCF") == "x");
    CHECK(after_remove(" $GUESS $END\n", "SCF") == " $GUESS $END\n");
    CHECK(after_remove(" $GUESS $END\n", "") == " $GUESS $END\n");
}

TEST_CASE("Text behind a removed group stays") {
    CHECK(after_remove(" $SCF A=1 $END ! note\n $GUESS $END\n", "SCF") ==
          "  ! note\n $GUESS $END\n");
}

TEST_CASE("A group without $END goes up to the next header") {
    CHECK(after_remove(" $SCF A=1\n $GUESS $END\n", "SCF") == " $GUESS $END\n");
    CHECK(after_remove(" $GUESS $END\n $SCF A=1\n", "SCF") == " $GUESS $END\n");
}

TEST_CASE("Making and removing a group gives the first text") {
    for (const char* const text : {"", " $DATA\nt\nC1\n $END\n", " $SCF $END\r\nnote\r\n"}) {
        CAPTURE(text);
        Deck deck{text};
        deck.ensure_section("GUESS");
        CHECK(deck.remove_section("GUESS"));
        CHECK(deck.text() == text);
    }
}

TEST_CASE("One copy of a group is replaced by a text") {
    const std::string deck = " $VEC\n 1\n $END\nnote\n $VEC\n 2\n $END ! second\n";
    CHECK(after_replace(deck, 1, " $VEC\n 7  7\n $END\n") ==
          " $VEC\n 7  7\n $END\nnote\n $VEC\n 2\n $END ! second\n");
    CHECK(after_replace(" $SCF $END\n" + deck, 1, "$VEC\n 7\n $END") ==
          " $SCF $END\n $VEC\n 7\n $END\nnote\n $VEC\n 2\n $END ! second\n");
    CHECK(after_replace(deck, 2, "\n\n$vec\n 7\n $end") ==
          " $VEC\n 1\n $END\nnote\n $vec\n 7\n $end ! second\n");
}

TEST_CASE("A replaced group takes the line ends of the deck") {
    CHECK(after_replace(" $VEC\r\n 1\r\n $END\r\n", 1, " $VEC\n 2\n $END\n") ==
          " $VEC\r\n 2\r\n $END\r\n");
}

TEST_CASE("A group without $END can be replaced by one that has it") {
    CHECK(after_replace(" $VEC\n 1\n $SCF $END\n", 1, " $VEC\n 2\n $END") ==
          " $VEC\n 2\n $END\n $SCF $END\n");
    CHECK(after_replace(" $VEC\n 1\n", 1, " $VEC\n 2\n $END") == " $VEC\n 2\n $END");
}

TEST_CASE("A text that is not one whole group of the name is refused") {
    const std::string deck = " $VEC\n 1\n $END\n";
    for (const char* const text :
         {"", "x", " $VEC\n 2\n", " $HESS\n $END\n", " $VEC\n $END\n $VEC\n $END\n",
          " $VEC\n $END tail", "head\n $VEC\n $END\n"}) {
        CAPTURE(text);
        CHECK(after_replace(deck, 1, text) == "refused: Section cannot be read back: VEC");
    }
    CHECK(after_replace(deck, 2, " $VEC\n $END") == "refused: No such section: VEC");
    CHECK(after_replace(deck, 0, " $VEC\n $END") == "refused: No such section: VEC");
    CHECK(after_replace("$VEC\n $END\n", 1, " $VEC\n $END") == "refused: No such section: VEC");
}

TEST_CASE("A list of edits is applied as a whole") {
    Deck deck{"0123456789"};
    deck.apply(std::vector<Edit>{{{0, 0}, "a"}, {{2, 4}, ""}, {{4, 5}, "xyz"}, {{10, 10}, "e"}});
    CHECK(deck.text() == "a01xyz56789e");
}

TEST_CASE("Edits that overlap or lie outside the text are refused") {
    const std::vector<std::vector<Edit>> lists{
        {{{0, 3}, ""}, {{2, 4}, ""}},
        {{{5, 6}, ""}, {{1, 2}, ""}},
        {{{9, 11}, ""}},
        {{{4, 3}, ""}},
    };
    for (const std::vector<Edit>& edits : lists) {
        Deck deck{"0123456789"};
        CHECK_THROWS_WITH_AS(deck.apply(edits), "Edits overlap or lie outside the text",
                             std::runtime_error);
        CHECK(deck.text() == "0123456789");
    }
}

}  // namespace nurl::input::gamess::source
