#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

namespace {

const std::string basis = " $BASIS GBASIS=STO $END\n";
const std::string hydrogen = " $DATA\nt\nC1\nH 1.0\n $END\n";

}  // namespace

TEST_CASE("A number of electrons that does not go with the multiplicity is found") {
    const std::string water = " $DATA\nt\nC1\nO 8.0 0 0 0\nH 1.0 0 0 1\nH 1.0 0 1 0\n $END\n";
    const std::string one =
        "1 electron does not go with MULT=1: the charges of the atoms are 1 in "
        "all, ICHARG is 0";
    check_rows(
        "electron-count",
        {{"an even number", basis + water, {}},
         {"a triplet", " $CONTRL MULT=3 $END\n" + basis + water, {}},
         {"a doublet",
          " $CONTRL MULT=2 $END\n" + basis + water,
          {"1:10 10 electrons do not go with MULT=2: the charges of the atoms are 10 in all, "
           "ICHARG "
           "is 0"}},
         {"a cation",
          " $CONTRL ICHARG=1 $END\n" + basis + water,
          {"1:10 9 electrons do not go with MULT=1: the charges of the atoms are 10 in all, ICHARG "
           "is 1"}},
         {"an anion", " $CONTRL ICHARG=-1 MULT=2 $END\n" + basis + water, {}},
         {"the values that count",
          " $CONTRL MULT=2 $END\n $CONTRL MULT=1 $END\n" + basis + water,
          {}},
         {"values of other groups",
          " $CONTRL MULT=1 $END\n $TDDFT MULT=2 $END\n" + basis + water,
          {}},
         {"a multiplicity out of range", " $CONTRL MULT=4000000000 $END\n" + basis + water, {}},
         {"no electrons",
          " $CONTRL ICHARG=1 MULT=2 $END\n" + basis + hydrogen,
          {"1:19 0 electrons do not go with MULT=2: the charges of the atoms are 1 in all, ICHARG "
           "is "
           "1"}},
         {"no $CONTRL", basis + hydrogen, {"2:2 " + one}},
         {"symmetry", basis + " $DATA\nt\nCNV 2\n\nO 8.0 0 0 0\nH 1.0 0 0 1\n $END\n", {}},
         {"symmetry with all atoms",
          " $CONTRL COORD=CART $END\n" + basis + " $DATA\nt\nCNV 2\n\nH 1.0 0 0 1\n $END\n",
          {"3:2 " + one}},
         {"a Z-matrix",
          " $CONTRL COORD=ZMT $END\n" + basis +
              " $DATA\nt\nC1\nO\nX 1 1.0\nH 1 1.0 2 90.\n"
              " $END\n",
          {"3:2 9 electrons do not go with MULT=1: the charges of the atoms are 9 in all, ICHARG "
           "is "
           "0"}},
         {"a Z-matrix with an atomic number",
          " $CONTRL COORD=ZMT MULT=2 $END\n" + basis + " $DATA\nt\nC1\n7\n $END\n",
          {}},
         {"a name that is no element",
          " $CONTRL COORD=ZMT $END\n" + basis + " $DATA\nt\nC1\nQ\n $END\n",
          {}},
         {"internal coordinates with a charge behind any name",
          " $CONTRL COORD=HINT $END\n" + basis + " $DATA\nt\nC1\nQ 1.0 LC 0.5\n $END\n",
          {"3:2 " + one}},
         {"atoms without nuclei", basis + " $DATA\nt\nC1\nO 8.0\nH -1.0 0 0 1\nX 0.0\n $END\n", {}},
         {"a part of a charge", basis + " $DATA\nt\nC1\nH 1.5\n $END\n", {}},
         {"an unreadable charge", basis + " $DATA\nt\nC1\nH x\n $END\n", {}},
         {"a charge of no molecule", basis + " $DATA\nt\nC1\nH 1000000001\n $END\n", {}},
         {"the smallest charge of no molecule",
          " $CONTRL MULT=2 $END\n" + basis + " $DATA\nt\nC1\nH 1000000000\n $END\n",
          {}},
         {"the lowest charge of a molecule",
          " $CONTRL ICHARG=-1000000000 $END\n" + basis + hydrogen,
          {"1:10 1000000001 electrons do not go with MULT=1: the charges of the atoms are 1 in "
           "all, ICHARG is -1000000000"}},
         {"blank cards between atoms",
          basis + " $DATA\nt\nC1\nH 1.0\n\nHE 2.0\n $END\n",
          {"2:2 3 electrons do not go with MULT=1: the charges of the atoms are 3 in all, ICHARG "
           "is 0"}},
         {"an unreadable charge of the molecule",
          " $CONTRL ICHARG=x $END\n" + basis + hydrogen,
          {}},
         {"an unreadable multiplicity", " $CONTRL MULT=x $END\n" + basis + hydrogen, {}},
         {"more charge than there is", " $CONTRL ICHARG=2 $END\n" + basis + hydrogen, {}},
         {"a core potential of the deck", " $ECP\nx\n $END\n" + basis + hydrogen, {}},
         {"a core potential to be read", " $CONTRL PP=READ $END\n" + basis + hydrogen, {}},
         {"a model core potential", " $CONTRL PP=mcp $END\n" + basis + hydrogen, {}},
         {"a core potential of GAMESS",
          " $CONTRL PP=SBKJC $END\n" + basis + hydrogen,
          {"3:2 " + one}},
         {"a fragment run", " $FMO NFRAG=1 $END\n" + basis + hydrogen, {}},
         {"quantum nuclei", " $NEO $END\n" + basis + hydrogen, {}},
         {"an inline basis set",
          " $DATA\nt\nC1\nH 1.0 0 0 0\nS 1\n1 0.5 1.0\n\n $END\n",
          {"1:2 " + one}},
         {"a basis set from elsewhere",
          " $CONTRL RUNTYP=COMP $END\n $DATA\nt\nC1\nH 1.0 0 0 0\n"
          "O 8.0 0 0 1\n $END\n",
          {}},
         {"no atoms", " $CONTRL MULT=2 $END\n" + basis + " $DATA\nt\nC1\n $END\n", {}},
         {"no molecule", basis, {}}});
}

TEST_CASE("Orbitals that are to be read and not there are found") {
    const std::string moread = " $GUESS GUESS=moread $END\n";
    const std::string finding = "GUESS=MOREAD needs orbitals to read, and the deck has no $VEC";
    check_rows(
        "missing-vec",
        {{"missing", moread + basis + hydrogen, {"1:15 " + finding}},
         {"there", moread + basis + hydrogen + " $VEC\n $END\n", {}},
         {"numbered", moread + basis + hydrogen + " $VEC1\n $END\n", {}},
         {"not found, which is another rule's", moread + basis + hydrogen + "$VEC\n $END\n", {}},
         {"another guess", " $GUESS GUESS=HUCKEL $END\n" + hydrogen, {}},
         {"no guess", " $GUESS GUESS= $END\n" + hydrogen, {}},
         {"overridden", moread + " $GUESS GUESS=HUCKEL $END\n" + hydrogen, {}},
         {"a part of a deck", moread + basis, {}},
         {"a fragment run", moread + " $FMO NFRAG=1 $END\n" + hydrogen, {}}});
}

TEST_CASE("A deck without a molecule is found") {
    const std::string finding = "The deck has no $DATA, which GAMESS needs for the molecule";
    check_rows(
        "missing-molecule",
        {{"missing", " $SCF $END\n", {"1:2 " + finding}},
         {"there", hydrogen, {}},
         {"not found, which is another rule's", " $SCF $END\n$DATA\nt\nC1\n$END\n", {}},
         {"fragments only", " $CONTRL COORD=FRAGONLY $END\n", {}},
         {"TINKER", " $CONTRL COORD=tinker $END\n", {}},
         {"behind a group that is not found", "$SCF $END\n $GUESS $END\n", {"2:2 " + finding}},
         {"no group that is found", "$SCF $END\n", {}},
         {"no deck", "some text\n", {}}});
}

TEST_CASE("A fragment run without the coordinates of its atoms is found") {
    const std::string finding =
        "$FMO needs the coordinates of the atoms, and the deck has no $FMOXYZ";
    const std::string fragments = " $FMO NFRAG=1 $END\n";
    check_rows(
        "missing-fmoxyz",
        {{"missing", fragments + hydrogen, {"1:2 " + finding}},
         {"there", fragments + hydrogen + " $FMOXYZ\n $END\n", {}},
         {"not found, which is another rule's", fragments + hydrogen + "$FMOXYZ\n $END\n", {}},
         {"a part of a deck", fragments, {}},
         {"no fragments", hydrogen, {}}});
}
