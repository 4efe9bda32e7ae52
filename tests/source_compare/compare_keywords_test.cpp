#include <string>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "source_compare/comparing.hpp"

namespace nurl::test {

namespace {

/// Differences of two decks with one group each, of these bodies.
Lines in_group(const std::string& name, const std::string& a, const std::string& b) {
    return differences(" $" + name + " " + a + " $END\n", " $" + name + " " + b + " $END\n");
}

}  // namespace

TEST_CASE("Layout, comments, letter case and the order of keywords do not count") {
    CHECK(in_group("CONTRL", "SCFTYP=RHF MULT=1", "MULT = 1,scftyp=Rhf") == Lines{});
    CHECK(in_group("CONTRL", "SCFTYP=RHF ! closed ! MULT=1", "SCFTYP=\n  RHF\n! MULT=3\nMULT=1") ==
          Lines{});
}

TEST_CASE("A changed value is one difference with both places") {
    CHECK(in_group("SCF", "DIRSCF=.T. MAXIT=30", "MAXIT=50 DIRSCF=.T.") ==
          Lines{"keyword SCF MAXIT: \"30\"@1:18 -> \"50\"@1:7"});
}

TEST_CASE("A keyword that only one deck has is absent on the other side") {
    CHECK(in_group("SCF", "DIRSCF=.T. MAXIT=30", "DIRSCF=.T.") ==
          Lines{"keyword SCF MAXIT: \"30\"@1:18 -> -"});
    CHECK(in_group("SCF", "DIRSCF=.T.", "maxit=30 DIRSCF=.T.") ==
          Lines{"keyword SCF MAXIT: - -> \"30\"@1:7"});
}

TEST_CASE("Differences come in the order of the first deck, then of the second") {
    CHECK(in_group("SCF", "C=1 B=1 A=1", "E=1 A=2 D=1 C=2") ==
          Lines{"keyword SCF C: \"1\"@1:7 -> \"2\"@1:19", "keyword SCF B: \"1\"@1:11 -> -",
                "keyword SCF A: \"1\"@1:15 -> \"2\"@1:11", "keyword SCF E: - -> \"1\"@1:7",
                "keyword SCF D: - -> \"1\"@1:15"});
}

TEST_CASE("Numbers and logicals are compared by what they stand for") {
    CHECK(in_group("SCF", "CONV=1D-5 DIRSCF=.TRUE. MAXIT=030", "CONV=.00001 DIRSCF=.t. MAXIT=30") ==
          Lines{});
    CHECK(in_group("SCF", "CONV=1D-5", "CONV=1D-6") ==
          Lines{"keyword SCF CONV: \"1D-5\"@1:7 -> \"1D-6\"@1:7"});
    CHECK(in_group("SCF", "DIRSCF=.T.", "DIRSCF=T") ==
          Lines{"keyword SCF DIRSCF: \".T.\"@1:7 -> \"T\"@1:7"});
}

TEST_CASE("Quoted texts are compared as they are") {
    CHECK(in_group("QUANPO", "OTHER='a b.top'", "OTHER='a b.top'") == Lines{});
    CHECK(in_group("QUANPO", "OTHER='a b.top'", "OTHER='A b.top'") ==
          Lines{"keyword QUANPO OTHER: \"'a b.top'\"@1:10 -> \"'A b.top'\"@1:10"});
}

TEST_CASE("The letter case of a keyword that the schema calls a text counts") {
    CHECK(in_group("QUANPO", "TOPFILE=water.top", "TOPFILE=Water.top") ==
          Lines{"keyword QUANPO TOPFILE: \"water.top\"@1:10 -> \"Water.top\"@1:10"});
    CHECK(in_group("SCF", "TOPFILE=water.top", "TOPFILE=Water.top") == Lines{});
}

TEST_CASE("The last value in all copies counts") {
    const std::string copies = " $SCF MAXIT=10 $END\n $SCF DIRSCF=.T. MAXIT=30 $END\n";
    CHECK(differences(copies, " $SCF MAXIT=30 DIRSCF=.T. $END\n") == Lines{});
    CHECK(differences(copies, " $SCF MAXIT=10 DIRSCF=.T. $END\n") ==
          Lines{"keyword SCF MAXIT: \"30\"@2:18 -> \"10\"@1:7"});
}

TEST_CASE("A list is the same wherever its lines break") {
    CHECK(in_group("ZMAT", "IZMAT(1)=1,1,2,1,2,3", "IZMAT(1)=1,1,2, ! first !\n   1 2 3") ==
          Lines{});
}

TEST_CASE("A keyword without index is the first element") {
    CHECK(in_group("STATPT", "IFREEZ=4", "IFREEZ(1)=4") == Lines{});
    CHECK(in_group("STATPT", "IFREEZ(1)=4,5", "IFREEZ=4 IFREEZ(2)=5") == Lines{});
    CHECK(in_group("STATPT", "IFREEZ=4", "IFREEZ(2)=4") ==
          Lines{"keyword STATPT IFREEZ(1): \"4,\"@1:10 -> \",4\"@1:10"});
}

TEST_CASE("An array is the same in one piece and in several") {
    CHECK(in_group("ZMAT", "IZMAT(1)=1,1,2,2,1,2,3", "IZMAT(4)=2,1,2,3 IZMAT(1)=1,1,2") == Lines{});
    CHECK(in_group("ZMAT", "IZMAT(1)=9,9,2 IZMAT(1)=1,1", "IZMAT(1)=1,1,2") == Lines{});
}

TEST_CASE("An array in one piece on both sides is shown whole") {
    CHECK(in_group("ZMAT", "IZMAT(1)=1, 1,2", "IZMAT(1)=1,1,3") ==
          Lines{"keyword ZMAT IZMAT(1): \"1, 1,2\"@1:8 -> \"1,1,3\"@1:8"});
    CHECK(in_group("ZMAT", "A=1", "A=1 IZMAT(1)=1,1,3") ==
          Lines{"keyword ZMAT IZMAT(1): - -> \"1,1,3\"@1:12"});
    CHECK(in_group("ZMAT", "A=1 IZMAT(1)=1,1,3", "A=1") ==
          Lines{"keyword ZMAT IZMAT(1): \"1,1,3\"@1:12 -> -"});
    CHECK(in_group("ZMAT", "A=", "A=1,2") == Lines{"keyword ZMAT A: \"\"@1:8 -> \"1,2\"@1:8"});
}

TEST_CASE("Of an array in pieces the elements are shown that differ") {
    CHECK(in_group("ZMAT", "IZMAT(1)=1,1,2 IZMAT(4)=2,1,2,3", "IZMAT(1)=1,1,2,2,7,8,3") ==
          Lines{"keyword ZMAT IZMAT(5): \"1,2\"@1:23 -> \"7,8\"@1:8"});
    CHECK(in_group("ZMAT", "IZMAT(1)=1,1,2 IZMAT(4)=2", "IZMAT(1)=1,1,2") ==
          Lines{"keyword ZMAT IZMAT(4): \"2\"@1:23 -> -"});
    CHECK(in_group("ZMAT", "I(1)=1,1,2 I(4)=2,3", "I(1)=1,1,2") ==
          Lines{"keyword ZMAT I(4): \"2,3\"@1:19 -> -"});
    CHECK(in_group("ZMAT", "I(1)=1,1,2", "I(1)=1,1,2 I(4)=2,3") ==
          Lines{"keyword ZMAT I(4): - -> \"2,3\"@1:19"});
    CHECK(in_group("ZMAT", "IZMAT(1)=1 IZMAT(3)=3", "IZMAT(1)=1 IZMAT(2)=2") ==
          Lines{"keyword ZMAT IZMAT(2): \",3\"@1:19 -> \"2,\"@1:19"});
}

TEST_CASE("A keyword with several indices is a keyword of its own") {
    CHECK(in_group("SCF", "P(1,2)=3,4 P(1)=1", "P(1)=1 P(1,2)=3 4") == Lines{});
    CHECK(in_group("SCF", "P(1,2)=3", "P(2,1)=3") ==
          Lines{"keyword SCF P(1,2): \"3\"@1:7 -> -", "keyword SCF P(2,1): - -> \"3\"@1:7"});
    CHECK(in_group("SCF", "P(1,2)=3", "P(1,2)=4") ==
          Lines{"keyword SCF P(1,2): \"3\"@1:7 -> \"4\"@1:7"});
}

TEST_CASE("An index that is no plain number is compared as it is written") {
    CHECK(in_group("SCF", "A(-1)=3 A(I)=4 A(99999999999)=5 A()=6",
                   "A()=6 A(99999999999)=5 A(-1)=3 A(I)=4") == Lines{});
    CHECK(in_group("SCF", "A(007)=3 A( 8 )=4", "A(7)=3,4") == Lines{});
    CHECK(in_group("SCF", "A(+7)=3", "A(7)=3").size() == 2);
}

TEST_CASE("Elements are counted over what is missing between commas") {
    CHECK(in_group("SCF", "A(1)=1,,3", "A(1)=1,,3") == Lines{});
    CHECK(in_group("SCF", "A(1)=1,,3", "A(1)=1 A(3)=3") == Lines{});
    CHECK(in_group("SCF", "A(1)=1,,3", "A(1)=1,3") ==
          Lines{"keyword SCF A(1): \"1,,3\"@1:7 -> \"1,3\"@1:7"});
    CHECK(in_group("SCF", "A(1)=,3", "A(1)=3") ==
          Lines{"keyword SCF A(1): \"3\"@1:7 -> \"3\"@1:7"});
    CHECK(in_group("SCF", "A(1)=1, ! , !\n 3", "A(1)=1,3") == Lines{});
    CHECK(in_group("SCF", "A(1)=1 ! x !,, 3", "A(1)=1,,3") == Lines{});
    CHECK(in_group("SCF", "A(1)=1 ! x\n,,3", "A(1)=1,,3") == Lines{});
}

TEST_CASE("A keyword without a value is not absent") {
    CHECK(in_group("SCF", "A= B=1", "B=1") == Lines{"keyword SCF A: \"\"@1:7 -> -"});
    CHECK(in_group("SCF", "A=1 A=", "A=1") == Lines{"keyword SCF A: \"\"@1:11 -> \"1\"@1:7"});
    CHECK(in_group("SCF", "A= A=1", "A=1") == Lines{});
}

TEST_CASE("Words that belong to no keyword count") {
    CHECK(in_group("SCF", "stray word A=1", "STRAY  WORD A=1") == Lines{});
    CHECK(in_group("SCF", "stray A=1", "A=1") == Lines{"line SCF: \"stray\"@1:7 -> -"});
    CHECK(in_group("SCF", "stray A=1", "stray word A=1") ==
          Lines{"line SCF: \"stray\"@1:7 -> \"stray word\"@1:7"});
    CHECK(in_group("SCF", "A=1", "stray A=1") == Lines{"line SCF: - -> \"stray\"@1:7"});
    CHECK(in_group("SCF", "1 A=1 = 2", "1 = 2 A=1").size() == 2);
    CHECK(in_group("SCF", "A=1 = 2 B=3", "A=1 B=3 = 2") ==
          Lines{"line SCF: \"= 2\"@1:11 -> \"= 2\"@1:15"});
}

TEST_CASE("In $QUANPO a list goes on only behind the sign for it") {
    CHECK(in_group("QUANPO", "NFIXMM=1 2 3", "NFIXMM=1 2 >\n   3") == Lines{});
    CHECK(in_group("QUANPO", "NFIXMM=1 2 3", "NFIXMM=1 2 >\r\n   3") == Lines{});
    CHECK(in_group("QUANPO", "NFIXMM=1 2 3", "NFIXMM=1 2\n   3").size() == 1);
    CHECK(in_group("QUANPO", "NFIXMM=1 2 >\n\n 3", "NFIXMM=1 2 3").size() == 1);
    CHECK(in_group("QUANPO", "NFIXMM=1 2 >\n 3 >\n 4", "NFIXMM=1 2 >\n 3\n 4").size() == 1);
    CHECK(in_group("QUANPO", "NFIXMM=1 2\n 3", "NFIXMM=1 2\n\n 3") == Lines{});
    CHECK(in_group("QUANPO", "NFIXMM=1 2\n 3", "NFIXMM=1 2\n >\n 3") == Lines{});
    CHECK(in_group("QUANPO", "NFIXMM=1 MAXIT=1", "NFIXMM=1\n MAXIT=1") == Lines{});
}

TEST_CASE("An index is digits, nine at the most") {
    CHECK(in_group("SCF", "A=1 A(-1)=2", "A=1") == Lines{"keyword SCF A(-1): \"2\"@1:11 -> -"});
    CHECK(in_group("SCF", "A(000000002)=2", "A(2)=2") == Lines{});
    CHECK(in_group("SCF", "A(0000000002)=2", "A(2)=2") ==
          Lines{"keyword SCF A(0000000002): \"2\"@1:7 -> -", "keyword SCF A(2): - -> \"2\"@1:7"});
}

TEST_CASE("Elements that differ are shown where the first of them stands") {
    CHECK(in_group("SCF", "A(1)=1 A(2)=2", "A(1)=3 A(2)=4") ==
          Lines{"keyword SCF A(1): \"1,2\"@1:7 -> \"3,4\"@1:7"});
    CHECK(in_group("SCF", "A(1)=1,2 A(3)=3", "A=1") == Lines{"keyword SCF A(2): \"2,3\"@1:7 -> -"});
}

TEST_CASE("A keyword whose last copy has no value is shown as it is written there") {
    CHECK(in_group("SCF", "A= A=", "A=1") == Lines{"keyword SCF A: \"\"@1:10 -> \"1\"@1:7"});
    CHECK(in_group("SCF", "A(2)=5 A(3)=", "A(2)=5") ==
          Lines{"keyword SCF A(3): \"\"@1:14 -> \"5\"@1:7"});
}

TEST_CASE("Two lone CR behind a `>` are a line end with a `>` and one without") {
    CHECK(differences(" $QUANPO A=1 >\r\r 2 $END\r", " $QUANPO A=1\r 2 $END\r") == Lines{});
}

}  // namespace nurl::test
