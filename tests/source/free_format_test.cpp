#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/items_text.hpp"

namespace nurl::input::gamess::source {

namespace {

struct CardsCase {
    const char* name;
    std::string text;
    std::string items;
};

}  // namespace

TEST_CASE("A group without keywords is cut into cards") {
    const std::vector<CardsCase> cases{
        {"an empty group", " $ECP\n $END\n", ""},
        {"a group on one line", " $ECP $END\n", ""},
        {"two cards", " $ECP\nH NONE\nO NONE\n $END\n", "[H|NONE] [O|NONE]"},
        {"text behind the name", " $ECP H NONE\n $END\n", "[H|NONE]"},
        {"text in front of $END", " $ECP\nH NONE $END\n", "[H|NONE]"},
        {"commas and tabs", " $ECP\nH,NONE\t1,\n $END\n", "[H|NONE|1]"},
        {"a blank card", " $ECP\nA\n\n  \nB\n $END\n", "[A] [] [  ] [B]"},
        {"a card that looks like a keyword", " $DAMPGS\nH3=H2\n $END\n", "[H3=H2]"},
        {"a comment", " $ECP\nA ! note\n $END\n", "[A] ! note"},
        {"a line that is all comment", " $ECP\nA\n! note\nB\n $END\n", "[A] ! note [B]"},
        {"a comment in front of all cards", " $ECP ! note\n! more\nA\n $END\n",
         "! note ! more [A]"},
        {"two cards on a line", " $ECP\nS 1 ; 1 0.8 1.0\n $END\n", "[S|1] <;> [1|0.8|1.0]"},
        {"a `;` at the end of a line", " $ECP\nS 1;\nB\n $END\n", "[S|1] <;> [B]"},
        {"a blank card between `;`", " $ECP\nA;;B\n $END\n", "[A] <;> [] <;> [B]"},
        {"a card over two lines", " $ECP\nA B >\nC\nD\n $END\n", "[A|B|C] <>> [D]"},
        {"a card over three lines", " $ECP\nA >\nB > \nC\n $END\n", "[A|B|C] <>> <> >"},
        {"a `>` inside a line", " $GCILST\n> 1 2\n $END\n", "[>|1|2]"},
        {"a joined line with a comment", " $ECP\nA > ! note\nB\n $END\n", "[A|B] <> > ! note"},
        {"a joined line that ends its card", " $ECP\nA >\nB; C\n $END\n", "[A|B] <>> <;> [C]"},
        {"a joined line that is all comment", " $ECP\nA >\n! note\nB\n $END\n",
         "[A] <>> ! note [B]"},
        {"a joined line that begins with `;`", " $ECP\nA >\n;B\n $END\n", "[A] <>> <;> [B]"},
        {"a `>` on the last line", " $ECP\nA >\n $END\n", "[A] <>>"},
        {"fixed columns", " $VEC\n 1  1-0.5! ; >\n\n $END\n", "[ 1  1-0.5! ; >] []"},
        {"a title", " $DATA\nAll ! of ; this >\nC1\n $END\n", "[All ! of ; this >] [C1]"},
        {"a blank title", " $DATA\n\nC1\n $END\n", "[] [C1]"},
        {"CR LF line ends", " $ECP\r\nA\r\n\r\nB\r\n $END\r\n", "[A] [] [B]"},
    };
    for (const CardsCase& row : cases) {
        CAPTURE(row.name);
        CHECK(nurl::test::items_text(Deck{row.text}) == row.items);
    }
}

TEST_CASE("The span of a card covers the lines it joins") {
    const Deck deck{" $ECP\nA >\n  B\n $END\n"};
    const Item card = deck.items(deck.sections()[0])[0];
    CHECK(deck.text(card.span) == "A >\n  B");
    CHECK(card.position == Position{2, 1});
}

TEST_CASE("A card that goes on with a line of comment covers that line up to the comment") {
    const Deck deck{" $ECP\nA >\n  ! note\nB\n $END\n"};
    CHECK(deck.text(deck.items(deck.sections()[0])[0].span) == "A >\n  ");
}

}  // namespace nurl::input::gamess::source
