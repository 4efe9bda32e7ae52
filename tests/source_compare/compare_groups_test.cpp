#include <string>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "source_compare/comparing.hpp"

namespace nurl::test {

TEST_CASE("The order of groups and the text between them do not count") {
    CHECK(differences(" $CONTRL MULT=1 $END\n $SCF MAXIT=30 $END\n",
                      "a comment\n $SCF MAXIT=30 $END behind\n! more\n $CONTRL MULT=1 $END") ==
          Lines{});
    CHECK(differences("", "nothing here\n") == Lines{});
}

TEST_CASE("The two decks in the example of the header say the same") {
    CHECK(differences(" $SCF MAXIT=30 $END", " $scf maxit=3.D1 $end ! same") == Lines{});
}

TEST_CASE("A group that only one deck has is one difference") {
    CHECK(differences(" $CONTRL MULT=1 $END\n $scf MAXIT=30 $END\n", " $CONTRL MULT=1 $END\n") ==
          Lines{"group SCF: \"$scf\"@2:2 -> -"});
    CHECK(differences("", " $SCF MAXIT=30 $END\n $SCF A=1 $END\n") ==
          Lines{"group SCF: - -> \"$SCF\"@1:2"});
    CHECK(differences(" $SCF MAXIT=30 $END\n $SCF A=1 $END\n", "") ==
          Lines{"group SCF: \"$SCF\"@1:2 -> -"});
}

TEST_CASE("An empty group is not an absent one") {
    CHECK(differences(" $DFTBAO $END\n", "") == Lines{"group DFTBAO: \"$DFTBAO\"@1:2 -> -"});
    CHECK(differences(" $SCF $END\n", "\n") == Lines{"group SCF: \"$SCF\"@1:2 -> -"});
    CHECK(differences(" $SCF $END\n", " $scf\n $end\n") == Lines{});
}

TEST_CASE("A group that GAMESS does not see is none") {
    CHECK(differences("$SCF MAXIT=30 $END\n", "") == Lines{});
    CHECK(differences("$SCF MAXIT=30 $END\n", " $SCF MAXIT=30 $END\n") ==
          Lines{"group SCF: - -> \"$SCF\"@1:2"});
}

TEST_CASE("Groups come in the order of the first deck, then of the second") {
    CHECK(differences(" $B A=1 $END\n $A A=1 $END\n $C A=1 $END\n",
                      " $E $END\n $C A=2 $END\n $D $END\n $B A=2 $END\n") ==
          Lines{"keyword B A: \"1\"@1:5 -> \"2\"@4:5", "group A: \"$A\"@2:2 -> -",
                "keyword C A: \"1\"@3:5 -> \"2\"@2:5", "group E: - -> \"$E\"@1:2",
                "group D: - -> \"$D\"@3:2"});
}

TEST_CASE("A group that one of the decks names as one of cards is compared as such") {
    CHECK(differences(" $H\nN31 6\n $END\n", " $BASIS BASNAM=H $END\n $H\nn31 6\n $END\n") ==
          Lines{"line H: \"N31 6\"@2:1 -> \"n31 6\"@3:1", "group BASIS: - -> \"$BASIS\"@1:2"});
}

TEST_CASE("Copies of a group without keywords are compared one by one") {
    const std::string one = " $FCM\n 1 2\n $END\n";
    const std::string other = " $FCM\n 1 3\n $END\n";
    CHECK(differences(one + other, one + other) == Lines{});
    CHECK(differences(one + one, one + other) == Lines{"line FCM#2: \" 1 2\"@5:1 -> \" 1 3\"@5:1"});
    CHECK(differences(one, one + other) == Lines{"group FCM#2: - -> \"$FCM\"@4:2"});
    CHECK(differences(one + other + one, one) ==
          Lines{"group FCM#2: \"$FCM\"@4:2 -> -", "group FCM#3: \"$FCM\"@7:2 -> -"});
}

TEST_CASE("A group that one deck names as a basis set is compared card by card") {
    const std::string basis = " $BASIS BASNAM(1)=OXY $END\n";
    const std::string cards = " $OXY\nN31 6\n\n $END\n";
    CHECK(differences(basis + cards, basis + cards) == Lines{});
    CHECK(differences(basis + cards, " $BASIS BASNAM(1)=HYD $END\n" + cards) ==
          Lines{"keyword BASIS BASNAM(1): \"OXY\"@1:9 -> \"HYD\"@1:9"});
    CHECK(differences(basis + cards, " $BASIS BASNAM(1)=HYD $END\n $OXY\nN31\n6\n\n $END\n") ==
          Lines{"keyword BASIS BASNAM(1): \"OXY\"@1:9 -> \"HYD\"@1:9",
                "line OXY: \"N31 6\"@3:1 -> \"N31\"@3:1", "line OXY: - -> \"6\"@4:1"});
}

TEST_CASE("A group that is not closed is not the same as one that is") {
    CHECK(differences(" $SCF A=1 $END\n", " $SCF A=1\n") == Lines{"line SCF: \"$END\"@1:11 -> -"});
    CHECK(differences(" $SCF A=1\n", " $SCF A=1\n") == Lines{});
    CHECK(differences(" $ECP\n1 2\n $end\n", " $ECP\n1 2\n") ==
          Lines{"line ECP: \"$END\"@3:2 -> -"});
    CHECK(differences(" $ECP\n1 2", " $ECP\n1 2\n") == Lines{});
}

TEST_CASE("A group that is not closed goes on where another one begins") {
    const std::string open = " $SCF A=1\n";
    CHECK(differences(open + " $CONTRL $END\n $BASIS $END\n",
                      open + " $BASIS $END\n $CONTRL $END\n") ==
          Lines{"line SCF: \"$CONTRL\"@2:2 -> \"$BASIS\"@2:2"});
    CHECK(differences(open + " $CONTRL $END\n", " $CONTRL $END\n" + open) ==
          Lines{"line SCF: \"$CONTRL\"@2:2 -> -"});
    CHECK(differences(open + " $SCF B=1 $END\n", " $SCF A=1 $END\n $SCF B=1 $END\n") ==
          Lines{"line SCF: \"$SCF\"@2:2 -> \"$END\"@2:11"});
}

TEST_CASE("The name of a group is shown up to its eightieth byte") {
    const std::string shown = std::string(80, 'G');
    const std::string group = " $" + shown + "G ";
    CHECK(differences(group + "A=1 $END\n", group + "A=2 $END\n") ==
          Lines{"keyword " + shown + " A: \"1\"@1:85 -> \"2\"@1:85"});
    CHECK(differences(group + "x $END\n", group + "y $END\n") ==
          Lines{"line " + shown + ": \"x\"@1:85 -> \"y\"@1:85"});
    CHECK(differences(group + "$END\n", "") ==
          Lines{"group " + shown + ": \"$" + shown + "G\"@1:2 -> -"});
}

TEST_CASE("Any bytes are compared with themselves") {
    for (const std::string& text :
         {std::string{" $A\0=\0 $END", 11}, std::string{" $DATA"}, std::string{" $DATA $END"},
          std::string{" $VEC $END"}, std::string{" $SCF A=((((,,,,''''\"!"},
          std::string{"\xEF\xBB\xBF $SCF \xC3\xA9=\xFF\n $END"}})
        CHECK(differences(text, text) == Lines{});
}

}  // namespace nurl::test
