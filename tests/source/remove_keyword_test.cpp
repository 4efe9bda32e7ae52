#include <stdexcept>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/edited.hpp"

namespace nurl::input::gamess::source {

namespace {

struct RemovalCase {
    const char* name;
    std::string before;
    std::string after;
};

}  // namespace

TEST_CASE("A keyword goes with what separates it from the one before") {
    const std::vector<RemovalCase> cases{
        {"the last", " $SCF B=1 A=2 $END\n", " $SCF B=1 $END\n"},
        {"one in the middle", " $SCF B=1  A=2  C=3 $END\n", " $SCF B=1  C=3 $END\n"},
        {"one between commas", " $SCF B=1, A=2, C=3 $END\n", " $SCF B=1, C=3 $END\n"},
        {"one behind a comma", " $SCF B=1, A=2 $END\n", " $SCF B=1, $END\n"},
        {"one between a comma and another", " $SCF B=1, A=2 C=3 $END\n", " $SCF B=1, C=3 $END\n"},
        {"one in front of a comma", " $SCF B=1 A=2, C=3 $END\n", " $SCF B=1, C=3 $END\n"},
        {"one behind a comma, glued", " $SCF B=1, A=2$END\n", " $SCF B=1,$END\n"},
        {"the first", " $SCF A=2 B=1 $END\n", " $SCF B=1 $END\n"},
        {"the first with a comma", " $SCF A=2,B=1 $END\n", " $SCF B=1 $END\n"},
        {"the only one", " $SCF A=2 $END\n", " $SCF $END\n"},
        {"the only one, glued", " $SCF A=2$END\n", " $SCF $END\n"},
        {"the only one, below the name", " $SCF\n  A=2 $END\n", " $SCF $END\n"},
        {"a line of its own", " $SCF\n  B=1\n  A=2\n  C=3\n $END\n",
         " $SCF\n  B=1\n  C=3\n $END\n"},
        {"several lines of its own", " $SCF\n  A=2,\n   3\n  C=3\n $END\n",
         " $SCF\n  C=3\n $END\n"},
        {"the first of a line", " $SCF\n  A=2 C=3\n $END\n", " $SCF\n  C=3\n $END\n"},
        {"the first of a line, before a comment", " $SCF\n  A=2 ! two\n $END\n",
         " $SCF\n  ! two\n $END\n"},
        {"a line shared with $END", " $SCF B=1\n  A=2 $END\n", " $SCF B=1 $END\n"},
        {"a line shared with $END, 80 columns with the one before",
         " $SCF B=" + std::string(67, '1') + "\n  A=2 $END\n",
         " $SCF B=" + std::string(67, '1') + " $END\n"},
        {"a line shared with $END behind a blank line", " $SCF B=1\n\n  A=2 $END\n",
         " $SCF B=1\n\n  $END\n"},
        {"a line shared with $END behind a comment", " $SCF B=1 ! b\n  A=2 $END\n",
         " $SCF B=1 ! b\n  $END\n"},
        {"all of several", " $SCF A=1 B=1 A=2 $END\n $SCF A=3 $END\n",
         " $SCF B=1 $END\n $SCF $END\n"},
        {"two neighbours", " $SCF\n A=1 A=2 B=1\n $END\n", " $SCF\n  B=1\n $END\n"},
        {"a value with a comment", " $SCF A=1, ! one !2 B=1 $END\n", " $SCF ! one ! B=1 $END\n"},
        {"a value with two comments", " $SCF A=1 !one!!two! 2 B=1 $END\n",
         " $SCF !one!!two! B=1 $END\n"},
        {"a value with an open comment", " $SCF A=1, ! one\n 2 B=1 $END\n",
         " $SCF ! one\n B=1 $END\n"},
        {"not in a comment", " $SCF B=1 ! A=2\n $END\n", " $SCF B=1 ! A=2\n $END\n"},
        {"not in another group", " $GUESS A=2 $END\n", " $GUESS A=2 $END\n"},
        {"not off column 2", "$SCF A=2 $END\n", "$SCF A=2 $END\n"},
    };
    for (const RemovalCase& row : cases) {
        CAPTURE(row.name);
        CHECK(nurl::test::after_removal(row.before, "scf", "a") == row.after);
    }
}

TEST_CASE("A keyword over joined lines goes with the sign that joins them") {
    CHECK(nurl::test::after_removal(" $QUANPO A=1 >\n 2 B=1 $END\n", "QUANPO", "A") ==
          " $QUANPO  B=1 $END\n");
}

TEST_CASE("Nothing is removed for blank names and groups without keywords") {
    Deck deck{" $SCF A=1 $END\n $DATA\nA=1\nC1\n $END\n"};
    CHECK_FALSE(deck.remove_keyword("", "A"));
    CHECK_FALSE(deck.remove_keyword("SCF", " "));
    CHECK_FALSE(deck.remove_keyword("DATA", "A"));
    CHECK_FALSE(deck.remove_keyword("VEC", "A"));
    CHECK(deck.text() == " $SCF A=1 $END\n $DATA\nA=1\nC1\n $END\n");
}

TEST_CASE("A keyword whose removal would change another one stays") {
    Deck deck{" $SCF B=x A=2 =3 $END\n"};
    CHECK_THROWS_WITH_AS(deck.remove_keyword("SCF", "A"), "Keyword cannot be removed by itself: A",
                         std::runtime_error);
    CHECK(deck.text() == " $SCF B=x A=2 =3 $END\n");
}

TEST_CASE("A line that $END would make longer than 80 columns keeps its end") {
    const std::string full = " $SCF B=" + std::string(72, '1');
    CHECK(nurl::test::after_removal(full + "\n A=2 $END\n", "SCF", "A") == full + "\n $END\n");
}

TEST_CASE("A comma at the end of the name of a group stays") {
    CHECK(nurl::test::after_removal(" $X, A=1 , B=2 $END\n", "X,", "A") == " $X, , B=2 $END\n");
}

TEST_CASE("A keyword stays when others would come in another order without it") {
    Deck deck{" $SCF X A=1=0 Y=0 X=0 $END\n"};
    CHECK_THROWS_WITH_AS(deck.remove_keyword("SCF", "A"), "Keyword cannot be removed by itself: A",
                         std::runtime_error);
    CHECK(deck.text() == " $SCF X A=1=0 Y=0 X=0 $END\n");
}

TEST_CASE("Nothing is found or removed by an empty name") {
    Deck deck{" $SCF A=1 ! note ! $END\n"};
    CHECK_FALSE(deck.remove_keyword("SCF", " "));
    CHECK_FALSE(deck.get_keyword("SCF", "").has_value());
}

}  // namespace nurl::input::gamess::source
