#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/items_text.hpp"

namespace nurl::input::gamess::source {

namespace {

struct ItemsCase {
    std::string body;
    std::string items;
};

}  // namespace

TEST_CASE("The body of a keyword group is cut into keywords, comments, separators and words") {
    const std::vector<ItemsCase> cases{
        {"", ""},
        {"\n", ""},
        {"SCFTYP=RHF", "SCFTYP=RHF"},
        {"scftyp=rhf", "SCFTYP=rhf"},
        {"SCFTYP=RHF MULT=1", "SCFTYP=RHF MULT=1"},
        {"ISPHER = 1", "ISPHER=1"},
        {"ISPHER\t=\t1", "ISPHER=1"},
        {"NSTEP=\n 5", "NSTEP=5"},
        {"NSTEP\n=5", "\"NSTEP\" \"=\" \"5\""},
        {"NSTEP=", "NSTEP="},
        {"A= B=1", "A= B=1"},
        {"MULT=3 SCFTYP=UHF,TIMLIM=30.0", "MULT=3 SCFTYP=UHF <,> TIMLIM=30.0"},
        {"IFREEZ(4)=7,8", "IFREEZ(4)=7|8"},
        {"C(1,2)=1.0 D=2", "C(1,2)=1.0 D=2"},
        {"C( 1, 2 ) = 1.0 D=2", "C(1,2)=1.0 D=2"},
        {"A(+1,-2)=3", "A(+1,-2)=3"},
        {"A(10,9)=1", "A(10,9)=1"},
        {"A(X,1)=2", "\"A(X\" <,> \"1)\" \"=\" \"2\""},
        {"A=AB1,2)", "A=AB1|2)"},
        {"A=*(1,2)", "A=*(1|2)"},
        {"A='' B='x'", "A='' B='x'"},
        {"A(1,2 B=1", "\"A(1\" <,> \"2\" B=1"},
        {"IZMAT(1)=1,1,2,\n 2,1,2,3,\n", "IZMAT(1)=1|1|2|2|1|2|3 <,>"},
        {"NO(1)=1 2\n3", "NO(1)=1|2|3"},
        {"I=1, ! ring !2", "I=1|2 ! ring !"},
        {"I=1, ! ring\n 2 J=3", "I=1|2 ! ring J=3"},
        {"I=1, ! ring ! J=3", "I=1 <,> ! ring ! J=3"},
        {"stray A=1", "\"stray\" A=1"},
        {"A=1 $SCF B C=2", "A=1 \"$SCF\" \"B\" C=2"},
        {"A=1$SCF", "A=1 \"$SCF\""},
        {"A==1", "A= \"=\" \"1\""},
        {"1=2", "\"1\" \"=\" \"2\""},
        {"A=1 2=3", "A=1|2 \"=\" \"3\""},
        {"A=B=C", "A= B=C"},
        {"A='x = y, z' B=1", "A='x = y, z' B=1"},
        {"A=\"x, y\" B=1", "A=\"x, y\" B=1"},
        {"A='x ! y' B=1 !", "A='x ! y' B=1 !"},
        {"A='x\n y' B=1", "A='x|y' B=1"},
        {"A='x B=1", "A='x B=1"},
        {"A='x $y' B=1", "A='x \"$y'\" B=1"},
        {"A=AP' B=1", "A=AP' B=1"},
        {"A=2*0.5 B=CCSD(T) C=f(1,2) D=f(1,x)", "A=2*0.5 B=CCSD(T) C=f(1,2) D=f(1|x)"},
        {"A=(1,2)", "A=(1|2)"},
        {"NFIXMM=2 1 >\n 2 B=1", "NFIXMM=2|1|>|2 B=1"},
    };
    for (const ItemsCase& row : cases) {
        CAPTURE(row.body);
        CHECK(nurl::test::items_text(Deck{" $SCF " + row.body + " $END\n"}) == row.items);
    }
}

TEST_CASE("An index that the end of its group cuts off is none") {
    CHECK(nurl::test::items_text(Deck{" $SCF A=B(1$END\n"}) == "A=B(1");
    CHECK(nurl::test::items_text(Deck{" $SCF A=B(1,2$END\n"}) == "A=B(1|2");
}

TEST_CASE("In $QUANPO a `>` at the end of a line joins the next one") {
    const Deck deck{" $QUANPO NFIXMM=2 1 > \n 2 LEVEL=a>b $END\n"};
    CHECK(nurl::test::items_text(deck) == "NFIXMM=2|1|2 <>> LEVEL=a>b");
    CHECK(nurl::test::items_text(Deck{" $QUANPO NFIXMM=2 > 2 >$END\n"}) == "NFIXMM=2|>|2 <>>");
}

TEST_CASE("An item knows its line and column") {
    const Deck deck{"title\r\n $SCF DIRSCF=.T.,\r\n\tSOSCF=.T. ! note\r\n $END\r\n"};
    const std::vector<Item> items = deck.items(deck.sections()[0]);
    REQUIRE(items.size() == 4);
    CHECK(items[0].position == Position{2, 7});
    CHECK(items[1].position == Position{2, 17});
    CHECK(items[2].position == Position{3, 2});
    CHECK(items[3].position == Position{3, 12});
}

TEST_CASE("The span of a keyword goes from its name to the last word of its value") {
    const Deck deck{" $ZMAT IZMAT(1) = 1,1,2, ! bond\n  2,1,2,3,\n $END\n"};
    const Item item = deck.items(deck.sections()[0])[0];
    CHECK(deck.text(item.span) == "IZMAT(1) = 1,1,2, ! bond\n  2,1,2,3");
    CHECK(deck.text(item.value) == "1,1,2, ! bond\n  2,1,2,3");
}

TEST_CASE("A keyword without a value ends at its equals sign") {
    const Deck deck{" $SCF A = \n $END\n"};
    const Item item = deck.items(deck.sections()[0])[0];
    CHECK(deck.text(item.span) == "A =");
    CHECK(item.value.empty());
    CHECK(deck.value_of(item).empty());
}

}  // namespace nurl::input::gamess::source
