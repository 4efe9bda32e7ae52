#include <string>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "source_compare/comparing.hpp"

namespace nurl::test {

namespace {

/// Differences of two decks whose $DATA hold these lines.
Lines in_data(const std::string& a, const std::string& b, const std::string& groups) {
    return differences(" $DATA\n" + a + " $END\n" + groups, " $DATA\n" + b + " $END\n" + groups);
}

const std::string with_basis = " $BASIS GBASIS=STO NGAUSS=3 $END\n";
const std::string z_matrix = with_basis + " $CONTRL COORD=ZMT $END\n";
const std::string water = "water\nCNV 2\n\nO 8.0 0.0 0.0 0.1\nH 1.0 0.0 0.7 0.9\n";

}  // namespace

TEST_CASE("The layout of atoms, their comments and blank cards between them do not count") {
    CHECK(in_data(water, water, with_basis) == Lines{});
    CHECK(in_data(water,
                  "water  \ncnv  2 ! axis\n \no,8,0,0,.1\n\n! one of two\nH\t1 0 7D-1 .9 \n\n",
                  with_basis) == Lines{});
}

TEST_CASE("The title counts but for blanks at its end") {
    CHECK(in_data("a\nC1\n", "a \t\nC1\n", with_basis) == Lines{});
    CHECK(in_data("a\nC1\n", "A\nC1\n", with_basis) ==
          Lines{"line DATA title: \"a\"@2:1 -> \"A\"@2:1"});
    CHECK(in_data("a \t\nC1\n", "b\nC1\n", with_basis) ==
          Lines{"line DATA title: \"a\"@2:1 -> \"b\"@2:1"});
    CHECK(in_data("\nC1\n", "a\nC1\n", with_basis) ==
          Lines{"line DATA title: \"\"@2:1 -> \"a\"@2:1"});
}

TEST_CASE("The point group counts") {
    CHECK(in_data("a\nCNV 2\n\nO 8.0\n", "a\nCNV 3\n\nO 8.0\n", with_basis) ==
          Lines{"line DATA point group: \"CNV 2\"@3:1 -> \"CNV 3\"@3:1"});
    CHECK(in_data("a\nCNV 2\n\nO 8.0\n", "a\nCNV\n\nO 8.0\n", with_basis).size() == 1);
}

TEST_CASE("The cards for the axis count, and so does the blank one") {
    CHECK(in_data("a\nCS\n0 0 0 0 0 1\n1 0 0 PARALLEL\nO 8.0\n",
                  "a\nCS\n0. 0 0 0 0 1.0\n1,0,0,Parallel\nO 8.0\n", with_basis) == Lines{});
    CHECK(in_data("a\nCS\n0 0 0 0 0 1\n1 0 0\nO 8.0\n", "a\nCS\n0 0 0 0 0 1\n1 1 0\nO 8.0\n",
                  with_basis) == Lines{"line DATA axis: \"1 0 0\"@5:1 -> \"1 1 0\"@5:1"});
    CHECK(in_data("a\nCS\n\nO 8.0\n", "a\nCS\nO 8.0\n", with_basis) ==
          Lines{"line DATA axis: \"\"@4:1 -> -"});
}

TEST_CASE("A changed coordinate is one difference") {
    CHECK(in_data(water, "water\nCNV 2\n\nO 8.0 0.0 0.0 0.2\nH 1.0 0.0 0.7 0.9\n", with_basis) ==
          Lines{"line DATA atom: \"O 8.0 0.0 0.0 0.1\"@5:1 -> \"O 8.0 0.0 0.0 0.2\"@5:1"});
}

TEST_CASE("Coordinates that are left out are zero") {
    CHECK(in_data("a\nC1\nO 8.0\n", "a\nC1\nO 8.0 0.0 0.0 0.0\n", with_basis) == Lines{});
    CHECK(in_data("a\nC1\nO 8.0\n", "a\nC1\nO 8.0 0.0 0.0 0.1\n", with_basis).size() == 1);
    CHECK(in_data("a\nC1\nO 8.0 0.1 0.2\n", "a\nC1\nO 8.0 0.1,,0.2\n", with_basis).size() == 1);
}

TEST_CASE("An atom more is one difference, wherever it stands") {
    CHECK(in_data(water, water + "H 1.0 0.0 -0.7 0.9\n", with_basis) ==
          Lines{"line DATA atom: - -> \"H 1.0 0.0 -0.7 0.9\"@7:1"});
    CHECK(in_data("a\nC1\nO 8.0\nH 1.0\n", "a\nC1\nN 7.0\nO 8.0\nH 1.0\n", with_basis) ==
          Lines{"line DATA atom: - -> \"N 7.0\"@4:1"});
}

TEST_CASE("The basis set under an atom counts") {
    const std::string oxygen = "a\nC1\nO 8.0\n N31 6\n D 1\n 1 0.8 1.0\n\n";
    CHECK(in_data(oxygen, "a\nC1\nO 8.0\nn31,6\n D 1 ; 1 8D-1 1. ! d\n\n", "") == Lines{});
    CHECK(in_data(oxygen, "a\nC1\nO 8.0\n N31 6\n D 1\n 1 0.9 1.0\n\n", "") ==
          Lines{"line DATA basis: \" 1 0.8 1.0\"@7:1 -> \" 1 0.9 1.0\"@7:1"});
    CHECK(in_data(oxygen, "a\nC1\nO 8.0\n N31 6\n\n", "") ==
          Lines{"line DATA basis: \" D 1\"@6:1 -> -", "line DATA basis: \" 1 0.8 1.0\"@7:1 -> -"});
}

TEST_CASE("The blank card that closes a basis set counts where it decides what is an atom") {
    const std::string closed = "a\nC1\nO 8.0\n N31 6\n\nH 1.0\n N31 6\n\n";
    CHECK(
        in_data(closed, "a\nC1\nO 8.0\n N31 6\nH 1.0\n N31 6\n\n", "") ==
        Lines{"line DATA basis: \"\"@6:1 -> \"H 1.0\"@6:1", "line DATA atom: \"H 1.0\"@7:1 -> -"});
    CHECK(in_data(closed, "a\nC1\nO 8.0\n N31 6\n\nH 1.0\n N31 6\n", "") ==
          Lines{"line DATA basis: \"\"@9:1 -> -"});
    CHECK(in_data(closed, "a\nC1\nO 8.0\n N31 6\n\n\nH 1.0\n N31 6\n\n", "") ==
          Lines{"line DATA card: - -> \"\"@7:1"});
    CHECK(in_data(closed, "a\nC1\nO 8.0\n N31 6\n\n\nH 1.0\n N21 3\n\n", "") ==
          Lines{"line DATA card: - -> \"\"@7:1",
                "line DATA basis: \" N31 6\"@8:1 -> \" N21 3\"@9:1"});
}

TEST_CASE("A blank card alone under an atom makes the further ones count") {
    CHECK(in_data("a\nC1\nX 0.0\n\n", "a\nC1\nX 0.0\n\n\n", "") ==
          Lines{"line DATA card: - -> \"\"@6:1"});
}

TEST_CASE("A blank card behind C1 counts where an atom has a basis set") {
    CHECK(in_data("a\nC1\n\nO 8.0\n N31 6\n", "a\nC1\nO 8.0\n N31 6\n", "") ==
          Lines{"line DATA card: \"\"@4:1 -> -"});
    CHECK(in_data("a\nC1\n\nO 8.0\n", "a\nC1\nO 8.0\n", "") == Lines{});
}

TEST_CASE("A Z-matrix is compared with its values, however they are written") {
    CHECK(in_data("a\nC1\nO\nH 1 rOH\nH 1 rOH 2 aHOH\n\nrOH=0.96\naHOH=104.5\n",
                  "a\nC1\nO\nh 1 roh 0\nH 1 rOH 2 aHOH\n\n\nrOH 9.6D-1\naHOH = 104.5\n\n",
                  z_matrix) == Lines{});
    CHECK(in_data("a\nC1\nO\nH 1 rOH\n\nrOH=0.96\n", "a\nC1\nO\nH 1 rOH\n\nrOH=0.97\n", z_matrix) ==
          Lines{"line DATA variable: \"rOH=0.96\"@7:1 -> \"rOH=0.97\"@7:1"});
}

TEST_CASE("The blank card that ends a Z-matrix decides what is a value") {
    CHECK(in_data("a\nC1\nO\nH 1 rOH\n\nrOH=0.96\n", "a\nC1\nO\nH 1 rOH\nrOH=0.96\n", z_matrix) ==
          Lines{"line DATA variable: \"rOH=0.96\"@7:1 -> -",
                "line DATA atom: - -> \"rOH=0.96\"@6:1"});
    CHECK(in_data("a\nC1\nO\nH 1 0.9\n", "a\nC1\nO\nH 1 0.9\n\n", z_matrix) == Lines{});
    CHECK(in_data("a\nC1\n", "a\nC1\n\n", z_matrix) == Lines{"line DATA card: - -> \"\"@4:1"});
    CHECK(in_data("a\nC1\nO\nH 1 0.9\n", "a\nC1\n\nO\nH 1 0.9\n", z_matrix) ==
          Lines{"line DATA card: - -> \"\"@4:1"});
}

TEST_CASE("Blank cards between atoms in the manner of MOPAC count") {
    const std::string groups = with_basis + " $CONTRL COORD=ZMTMPC $END\n";
    CHECK(in_data("a\nC1\nO\nH 0.9 1\n", "a\nC1\nO\nH 0.9 1\n", groups) == Lines{});
    CHECK(in_data("a\nC1\nO\nH 0.9 1\n", "a\nC1\nO\n\nH 0.9 1\n", groups) ==
          Lines{"line DATA card: - -> \"\"@5:1"});
}

TEST_CASE("Where no molecule is read, its cards are compared all the same") {
    const std::string groups = " $CONTRL COORD=FRAGONLY $END\n";
    CHECK(in_data("a\nC1\n", "a\n\nc1\n", groups) == Lines{});
    CHECK(in_data("a\nC1\n", "a\nCS\n", groups) ==
          Lines{"line DATA card: \"C1\"@3:1 -> \"CS\"@3:1"});
}

TEST_CASE("A title on the line of the header is not one on a line of its own") {
    CHECK(differences(" $DATA a\nC1\n $END\n", " $DATA\na\nC1\n $END\n") ==
          Lines{"line DATA title: \"$DATA a\"@1:7 -> \"a\"@2:1"});
}

TEST_CASE("Every `=` separates the name of a variable from its value") {
    const std::string atoms = "a\nC1\nO\nH 1 R\n\n";
    CHECK(in_data(atoms + "R==0.9=\n", atoms + "R 0.9\n", z_matrix) == Lines{});
}

TEST_CASE("A blank card behind the basis set of an atom counts where a later atom has none") {
    CHECK(in_data("a\nC1\nH 1.0 0 0 0\nN31 6\n\n\nH 1.0 0 0 1\n",
                  "a\nC1\nH 1.0 0 0 0\nN31 6\n\nH 1.0 0 0 1\n",
                  "") == Lines{"line DATA card: \"\"@7:1 -> -"});
}

}  // namespace nurl::test
