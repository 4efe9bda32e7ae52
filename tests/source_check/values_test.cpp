#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

TEST_CASE("A value that is not of the type of its keyword is found") {
    check_rows(
        "value-type",
        {{"integers", " $CONTRL MULT=+3 ICHARG=-1 MAXIT=007 $END\n", {}},
         {"a number for an integer",
          " $CONTRL MULT=1. $END\n",
          {"1:15 MULT of $CONTRL takes an integer, not '1.'"}},
         {"a word for an integer",
          " $CONTRL MULT=one $END\n",
          {"1:15 MULT of $CONTRL takes an integer, not 'one'"}},
         {"numbers", " $STATPT OPTTOL=30 RMIN=3.E1 RMAX=-3.0d+01 RLIM=.5 $END\n", {}},
         {"a logical for a number",
          " $STATPT OPTTOL=.TRUE. $END\n",
          {"1:17 OPTTOL of $STATPT takes a number, not '.TRUE.'"}},
         {"logical values", " $SCF DIRSCF=.true. FDIFF=.F. SOSCF=.T. DIIS=.False. $END\n", {}},
         {"without periods",
          " $SCF DIRSCF=TRUE FDIFF=f $END\n",
          {"1:14 DIRSCF of $SCF takes a logical value, not 'TRUE' | did you mean .TRUE.?",
           "1:25 FDIFF of $SCF takes a logical value, not 'f' | did you mean .FALSE.?"}},
         {"a number for a logical",
          " $SCF DIRSCF=1 FDIFF=2 $END\n",
          {"1:14 DIRSCF of $SCF takes a logical value, not '1' | did you mean .TRUE.?",
           "1:22 FDIFF of $SCF takes a logical value, not '2'"}},
         {"yes and no where they are known", " $REKS REXDIIS=no $END\n", {}},
         {"yes and no elsewhere",
          " $SCF DIRSCF=no $END\n",
          {"1:14 DIRSCF of $SCF takes a logical value, not 'no' | did you mean .FALSE.?"}},
         {"no value", " $CONTRL SCFTYP= MULT=1 $END\n", {"1:10 SCFTYP of $CONTRL has no value"}},
         {"a list",
          " $ZMAT IZMAT(1)=1,1,x, 2\n y $END\n",
          {"1:21 IZMAT(1) of $ZMAT takes an integer, not 'x'",
           "2:2 IZMAT(1) of $ZMAT takes an integer, not 'y'"}},
         {"repeat counts", " $ZMAT IZMAT(1)=3*1 $END\n", {}},
         {"further words are another rule's", " $CONTRL MULT=1 x $END\n", {}},
         {"words and texts", " $CONTRL SCFTYP=1.5 $END\n", {}},
         {"a long word",
          " $CONTRL MULT=" + std::string(50, 'x') + " $END\n",
          {"1:15 MULT of $CONTRL takes an integer, not '" + std::string(40, 'x') + "...'"}},
         {"unknown keywords", " $SCF XYZZY= $END\n", {}},
         {"unknown groups", " $MINE DIRSCF=1 $END\n", {}}});
}

TEST_CASE("A word that begins as a number and is none is found") {
    const std::string tail = " cannot be read as a number";
    const std::string head = " $BASIS GBASIS=STO $END\n $DATA\nt\nC1\n";
    check_rows(
        "unreadable-number",
        {{"of an integer keyword",
          " $CONTRL MULT=1O $END\n",
          {"1:15 '1O' for MULT of $CONTRL" + tail}},
         {"of a real keyword",
          " $STATPT OPTTOL=1.0.E-4 $END\n",
          {"1:17 '1.0.E-4' for OPTTOL of $STATPT" + tail}},
         {"with a sign",
          " $STATPT OPTTOL=-.5x $END\n",
          {"1:17 '-.5x' for OPTTOL of $STATPT" + tail}},
         {"in a list", " $ZMAT IZMAT(1)=1,2l $END\n", {"1:19 '2l' for IZMAT(1) of $ZMAT" + tail}},
         {"a number of the wrong type is another rule's", " $CONTRL MULT=1.5 $END\n", {}},
         {"behind a repeat count",
          " $ZMAT IZMAT(1)=3*1,3*l,l*3,3*1x $END\n",
          {"1:21 '3*l' for IZMAT(1) of $ZMAT" + tail, "1:29 '3*1x' for IZMAT(1) of $ZMAT" + tail}},
         {"from the first digit to the last",
          " $ZMAT IZMAT(1)=0x,9x $END\n",
          {"1:17 '0x' for IZMAT(1) of $ZMAT" + tail, "1:20 '9x' for IZMAT(1) of $ZMAT" + tail}},
         {"of a logical keyword", " $SCF DIRSCF=1x $END\n", {}},
         {"a charge", head + "O 8,O 0 0 0\n $END\n", {"5:5 'O' for atom 'O'" + tail}},
         {"a coordinate",
          head + "O 8.0 0.0 O.0 1.0 x\n $END\n",
          {"5:11 'O.0' for atom 'O'" + tail}},
         {"an atom without coordinates", head + "O 8.0\n $END\n", {}},
         {"a fraction", head + "O 8.0 0.0 0.0 1.0/2\n $END\n", {}},
         {"half a fraction",
          head + "O 8.0 0.0 0.0 1.0/x\n $END\n",
          {"5:15 '1.0/x' for atom 'O'" + tail}},
         {"a Z-matrix",
          " $CONTRL COORD=ZMT $END\n" + head + "O\nH 1 roh\n\nroh 0.96\n $END\n",
          {}}});
}

TEST_CASE("A value that is not among those known is found") {
    const std::string tail = " is not among the values known for ";
    check_rows(
        "value-choice",
        {{"known, in any case", " $CONTRL SCFTYP=rohf RUNTYP=Optimize $END\n", {}},
         {"misspelt",
          " $CONTRL SCFTYP=RFH $END\n",
          {"1:17 'RFH'" + tail + "SCFTYP of $CONTRL | did you mean RHF?"}},
         {"far from few",
          " $CONTRL UNITS=METER $END\n",
          {"1:16 'METER'" + tail + "UNITS of $CONTRL | known values are ANGS, BOHR"}},
         {"far from many",
          " $CONTRL RUNTYP=NOTHING $END\n",
          {"1:17 'NOTHING'" + tail + "RUNTYP of $CONTRL"}},
         {"far from six",
          " $SYSTEM KDIAG=9 $END\n",
          {"1:16 '9'" + tail + "KDIAG of $SYSTEM | known values are 0, 1, 2, 3, 4, 5"}},
         {"taken by GAMESS besides", " $CONTRL UNITS=Angstrom $END\n", {}},
         {"numbers, however written", " $CONTRL ISPHER=+1 $END\n $CONTRL ISPHER=01 $END\n", {}},
         {"a number",
          " $CONTRL ISPHER=2 $END\n",
          {"1:17 '2'" + tail + "ISPHER of $CONTRL | known values are -1, 0, 1"}},
         {"of another type is another rule's", " $CONTRL ISPHER=x $END\n", {}},
         {"through an alias", " $DRT1 GROUP=C3V $END\n", {}},
         {"a keyword without choices", " $BASIS GBASIS=ANY $END\n", {}}});
}

TEST_CASE("Words behind a single value are found") {
    check_rows("extra-value",
               {{"one word",
                 " $CONTRL SCFTYP=RHF closed\n $END\n",
                 {"1:21 SCFTYP of $CONTRL takes one value, 1 more word follows"}},
                {"over lines and commas",
                 " $CONTRL MULT=1,\n 2 3 $END\n",
                 {"2:2 MULT of $CONTRL takes one value, 2 more words follow"}},
                {"a comment", " $CONTRL SCFTYP=RHF ! closed\n $END\n", {}},
                {"a list", " $ZMAT IZMAT(1)=1 2 3 $END\n", {}},
                {"a group of lists without index", " $QUANPO NFIXMM=2 1 2 $END\n", {}},
                {"two displacements", " $FORCE VIBSIZ=0.01 0.02 $END\n", {}},
                {"an unknown keyword", " $SCF XYZZY=1 2 $END\n", {}}});
}
