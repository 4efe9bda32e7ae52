#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

namespace {

/// A deck with these atoms behind its other groups.
std::string molecule(const std::string& atoms, const std::string& groups = "") {
    return " $BASIS GBASIS=STO $END\n" + groups + " $DATA\nt\nC1\n" + atoms + " $END\n";
}

}  // namespace

TEST_CASE("A charge that is not that of the element a name stands for is found") {
    check_rows(
        "charge-symbol",
        {{"agreeing", molecule("O 8.0 0 0 0\nh12 1 0 0 1\nCL 17. 0 0 3\n"), {}},
         {"another element",
          molecule("N1 6.0 0 0 0\n"),
          {"5:4 Atom 'N1' has the charge 6.0, the element N has 7"}},
         {"any digits",
          molecule("N90 6 0 0 0\nO09 8 0 0 1\n"),
          {"5:5 Atom 'N90' has the charge 6, the element N has 7"}},
         {"the first letter alone", molecule("CA 6.0 0 0 0\nHG 1.0 0 0 1\n"), {}},
         {"neither letter",
          molecule("CA 7.0 0 0 0\n"),
          {"5:4 Atom 'CA' has the charge 7.0, the element CA has 20"}},
         {"free names",
          molecule("CARBON 7.0 0 0 0\nH-1 8.0 0 0 1\nH_1 8.0 0 0 7\n12 5.0 0 0 9\nX 3.0 0 0 3\nQ1 "
                   "5.0 0 0 5\n"),
          {}},
         {"no charge", molecule("O 0.0 0 0 0\nO -8.0 0 0 1\nO -3 0 0 2\n"), {}},
         {"a part of a charge",
          molecule("H 0.5 0 0 0\n"),
          {"5:3 Atom 'H' has the charge 0.5, the element H has 1"}},
         {"coordinates in place of the charge",
          molecule("O -6.24 16.01 7.77\n"),
          {"5:1 Atom 'O' has coordinates where its charge should stand"}},
         {"in place of all charges",
          molecule("O -6.2 1 2\nH 0.1 1 3\nH 0.0 1 4\nH 1.5 1 5\n"),
          {"5:1 Atom 'O' has coordinates where its charge should stand, and so have 2 more"}},
         {"in place of two charges",
          molecule("O -6.2 1 2\nH 0.1 1 3\n"),
          {"5:1 Atom 'O' has coordinates where its charge should stand, and so have 1 more"}},
         {"a charge and two coordinates",
          molecule("N 6 1.0 2.0\n"),
          {"5:3 Atom 'N' has the charge 6, the element N has 7"}},
         {"a fragment run", molecule("H 8\n", " $FMO NFRAG=1 $END\n"), {}},
         {"a Z-matrix", molecule("O\nN 1 1.4\n", " $CONTRL COORD=ZMT $END\n"), {}},
         {"internal coordinates with charges",
          molecule("N 6.0 LC 1.0\n", " $CONTRL COORD=HINT $END\n"),
          {"6:3 Atom 'N' has the charge 6.0, the element N has 7"}}});
}

TEST_CASE("Atoms that nearly coincide are found") {
    const std::string finding = "lies closer than 0.1 Angstrom to atom ";
    check_rows(
        "close-atoms",
        {{"far apart", molecule("O 8 0 0 0\nH 1 0 0 0.1\n"), {}},
         {"close",
          molecule("O 8 0 0 0\nH 1 0 0 0.0999\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"apart along the first axis", molecule("O 8 0 0 0\nH 1 0.15 0 0\n"), {}},
         {"far apart as written, a little less in binary numbers",
          molecule("O 8 0 0 0.6\nH 1 0 0 0.7\n"),
          {}},
         {"close to two that are far apart",
          molecule("O 8 0 0 0.16\nN 7 0 0 0.02\nH 1 0 0 0.09\n"),
          {"7:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"close to two, the first one in the later cell of the grid",
          molecule("O 8 0 0 0.17\nN 7 0 0 0.04\nH 1 0 0 0.1\n"),
          {"7:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"close to two, the first one in the earlier cell",
          molecule("O 8 0 0 0.04\nN 7 0 0 0.17\nH 1 0 0 0.1\n"),
          {"7:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"across a cell of the grid",
          molecule("O 8 0.099 0 -0.01\nH 1 0.101 0 0.01\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"in the cell before",
          molecule("O 8 0.101 0.101 0.101\nH 1 0.099 0.099 0.099\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"on both sides of zero",
          molecule("O 8 -0.01 -0.01 -0.01\nH 1 0.01 0.01 0.01\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"three in one place",
          molecule("O 8 1 1 1\nH 1 1 1 1\nN 7 1 1 1\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5",
           "7:1 Atom 'N' " + finding + "'O' in line 5"}},
         {"in Bohr",
          molecule("O 8 0 0 0\nH 1 0 0 0.15\n", " $CONTRL UNITS=bohr $END\n"),
          {"7:1 Atom 'H' " + finding + "'O' in line 6"}},
         {"apart in Bohr", molecule("O 8 0 0 0\nH 1 0 0 0.2\n", " $CONTRL UNITS=BOHR $END\n"), {}},
         {"apart in Angstrom", molecule("O 8 0 0 0\nH 1 0 0 0.15\n"), {}},
         {"without a charge", molecule("O 8 0 0 0\nO -8 0 0 0\nX 0 0 0 0\n"), {}},
         {"left out zeros",
          molecule("O 8 0\nH 1 0.0\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"no coordinates", molecule("O 8\nH 1\n"), {}},
         {"a fragment run", molecule("O 8 0\nH 1 0\n", " $FMO NFRAG=1 $END\n"), {}},
         {"quantum nuclei", molecule("H 1 0\nH 1 0\n", " $NEO $END\n"), {}},
         {"a group that GAMESS does not see",
          molecule("O 8 0\nH 1 0\n", "$FMO NFRAG=1 $END\n"),
          {"7:1 Atom 'H' " + finding + "'O' in line 6"}},
         {"in the first of two $DATA",
          molecule("O 8 0\nH 1 0\n") + molecule("O 8 0\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"coordinates that are no place",
          molecule("O 8 0 0 0\nH 1 0 0 0\n", " $CONTRL COORD=HINT $END\n"),
          {}},
         {"at the end of the world",
          molecule("O 8 1e9 0 0\nH 1 1e9 0 0\n"),
          {"6:1 Atom 'H' " + finding + "'O' in line 5"}},
         {"out of this world", molecule("H 1 1e300 0 0\nH 1 1e300 0 0\n"), {}},
         {"an unreadable charge", molecule("H x 0 0 0\nO 8 0 0 0\n"), {}},
         {"unreadable", molecule("H 1 x 0 0\nH 1 x 0 0\n"), {}}});
}
