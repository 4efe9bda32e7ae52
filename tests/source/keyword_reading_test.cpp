#include <optional>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"
#include "support/show_model.hpp"

namespace nurl::input::gamess::source {

namespace {

using Entries = std::vector<KeyValue>;

}  // namespace

TEST_CASE("The last value of a keyword counts, within a group and over its copies") {
    const Deck deck{
        " $CONTRL MULT=1 SCFTYP=RHF MULT=2 $END\n $SCF $END\n $contrl scftyp=UHF $end\n"};
    CHECK(deck.get_keyword("CONTRL", "MULT") == "2");
    CHECK(deck.get_keyword("contrl", "SCFTYP") == "UHF");
}

TEST_CASE("A copy that GAMESS does not see gives no value") {
    const Deck deck{" $SCF DIRSCF=.T. $END\n$SCF DIRSCF=.F. $END\n"};
    CHECK(deck.get_keyword("SCF", "DIRSCF") == ".T.");
}

TEST_CASE("Names may be given in any case, with blanks around them and a `$`") {
    const Deck deck{" $SCF DIRSCF=.T. $END\n"};
    CHECK(deck.get_keyword(" $scf\n", "\tdirscf ") == ".T.");
}

TEST_CASE("A keyword without an index is its first element") {
    const Deck deck{" $ZMAT IZMAT(1)=1,1,2 IFREEZ=3 NO(2)=4 $END\n"};
    CHECK(deck.get_keyword("ZMAT", "IZMAT") == "1,1,2");
    CHECK(deck.get_keyword("ZMAT", "IFREEZ(1)") == "3");
    CHECK(deck.get_keyword("ZMAT", "NO(2)") == "4");
    CHECK(deck.get_keyword("ZMAT", "NO") == std::nullopt);
    CHECK(deck.get_keyword("ZMAT", "no( 2 )") == "4");
    CHECK(deck.get_keyword("ZMAT", "IZMAT( 1 )") == "1,1,2");
}

TEST_CASE("What is not there gives nothing") {
    const Deck deck{" $SCF DIRSCF=.T. $END\n $DATA\nA=1\nC1\n $END\n $VEC\nB=1\n $END\n"};
    CHECK(deck.get_keyword("SCF", "SOSCF") == std::nullopt);
    CHECK(deck.get_keyword("GUESS", "DIRSCF") == std::nullopt);
    CHECK(deck.get_keyword("SCF", "") == std::nullopt);
    CHECK(deck.get_keyword("", "DIRSCF") == std::nullopt);
    CHECK(deck.get_keyword("DATA", "A") == std::nullopt);
    CHECK(deck.get_keyword("VEC", "B") == std::nullopt);
}

TEST_CASE("A value that stands on one line is given as it is written") {
    const Deck deck{" $DFT A= x,  y ,z  B=two  words $END\n"};
    CHECK(deck.get_keyword("DFT", "A") == "x,  y ,z");
    CHECK(deck.get_keyword("DFT", "B") == "two  words");
}

TEST_CASE("Line ends and comments inside a value become a comma or a space") {
    const Deck deck{" $ZMAT A=1,\n  2 B=1\n  2 C=1 ! c, !,2 D=1 ! d, !\n 2 $END\n"};
    CHECK(deck.get_keyword("ZMAT", "A") == "1,2");
    CHECK(deck.get_keyword("ZMAT", "B") == "1 2");
    CHECK(deck.get_keyword("ZMAT", "C") == "1,2");
    CHECK(deck.get_keyword("ZMAT", "D") == "1 2");
    const Deck commas_below{" $ZMAT A=1\n ,2 B=1 ! b\n ,2 $END\n"};
    CHECK(commas_below.get_keyword("ZMAT", "A") == "1,2");
    CHECK(commas_below.get_keyword("ZMAT", "B") == "1,2");
}

TEST_CASE("list_keywords gives each keyword once, at its first place, with the value that counts") {
    const Deck deck{" $SCF A=1 NO(1)=2 B(2)=3 $END\n $SCF no=5 C= A=4 $END\n"};
    CHECK(deck.list_keywords("scf") ==
          Entries{{"A", "4"}, {"NO(1)", "5"}, {"B(2)", "3"}, {"C", ""}});
    CHECK(deck.list_keywords("GUESS").empty());
}

TEST_CASE("list_keywords is empty for groups without keywords") {
    const Deck deck{" $DATA\nA=1\nC1\n $END\n $DAMPGS\nH3=H2\n $END\n"};
    CHECK(deck.list_keywords("DATA").empty());
    CHECK(deck.list_keywords("DAMPGS").empty());
}

}  // namespace nurl::input::gamess::source
