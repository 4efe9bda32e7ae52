#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

TEST_CASE("A keyword that its group does not have is found, with those it is near to") {
    const std::string tail = "' is not currently described by the schema for section $";
    check_rows("unknown-keyword",
               {{"known, in any layout", " $contrl ScfTyp = rhf\n mult=\n1 $end\n", {}},
                {"misspelt",
                 " $CONTRL SCFTIP=RHF $END\n",
                 {"1:10 Keyword 'SCFTIP" + tail + "CONTRL | did you mean SCFTYP?"}},
                {"of another group",
                 " $SYSTEM MAXIT=30 $END\n",
                 {"1:10 Keyword 'MAXIT" + tail + "SYSTEM"}},
                {"known with an index", " $ZMAT IZMAT(1)=1 $END\n", {}},
                {"with an index",
                 " $ZMAT IZMTA(7)=1 $END\n",
                 {"1:8 Keyword 'IZMTA(7)" + tail + "ZMAT | did you mean IZMAT?"}},
                {"through an alias",
                 " $DRT1 FORS=.T. FROS=.T. $END\n",
                 {"1:17 Keyword 'FROS" + tail + "DRT1 | did you mean FORS?"}},
                {"each time",
                 " $SCF XYZZY=1 XYZZY=1 $END\n",
                 {"1:7 Keyword 'XYZZY" + tail + "SCF", "1:15 Keyword 'XYZZY" + tail + "SCF"}},
                {"in a comment", " $SCF ! XYZZY=1\n $END\n", {}},
                {"in an unknown group", " $MINE XYZZY=1 $END\n", {}},
                {"in a group of cards", " $EFRAG\n XYZZY=1\n $END\n", {}},
                {"in a group that is not found", "$SCF XYZZY=1 $END\n", {}}});
}

TEST_CASE("A value that is replaced further on is found where it stands") {
    const std::string tail = " is given again in line ";
    check_rows("repeated-keyword",
               {{"in one copy",
                 " $SCF CONV=1\n CONV=2 $END\n",
                 {"1:7 CONV of $SCF" + tail + "2, and that value counts"}},
                {"in two copies",
                 " $SCF CONV=1 $END\n $SYSTEM $END\n $SCF conv=2 $END\n",
                 {"1:7 CONV of $SCF" + tail + "3, and that value counts"}},
                {"three times",
                 " $SCF CONV=1\n CONV=2\n CONV=3 $END\n",
                 {"1:7 CONV of $SCF" + tail + "3, and that value counts",
                  "2:2 CONV of $SCF" + tail + "3, and that value counts"}},
                {"in other groups", " $SCF CONV=1 $END\n $TDHF CONV=2 $END\n", {}},
                {"as an array and as its first element",
                 " $ZMAT IZMAT=1\n IZMAT(1)=2 $END\n",
                 {"1:8 IZMAT of $ZMAT" + tail + "2, and that value counts"}},
                {"other elements", " $ZMAT IZMAT(1)=1 IZMAT(2)=1 $END\n", {}},
                {"in a copy that is not found", " $SCF CONV=1 $END\n$SCF CONV=2 $END\n", {}},
                {"unknown", " $SCF XYZZY=1 XYZZY=2 $END\n", {}}});
}

TEST_CASE("Words of structured groups that belong to no keyword are found once a line") {
    const std::string contrl = "Structured section $CONTRL still contains non-keyword raw text";
    check_rows(
        "stray-text",
        {{"in front of the first keyword",
          " $CONTRL closed shell SCFTYP=RHF $END\n",
          {"1:10 " + contrl}},
         {"on two lines", " $CONTRL one\n two three $END\n", {"1:10 " + contrl, "2:2 " + contrl}},
         {"before and behind a comment",
          " $CONTRL one ! two ! three $END\n",
          {"1:10 " + contrl, "1:22 " + contrl}},
         {"a = of no keyword", " $CONTRL = SCFTYP=RHF $END\n", {"1:10 " + contrl}},
         {"a group inside", " $CONTRL SCFTYP=RHF\n$SCF DIRSCF=.T. $END\n", {"2:1 " + contrl}},
         {"comments and commas", " $CONTRL , ! closed shell\n SCFTYP=RHF, $END\n", {}},
         {"in a group that is not structured", " $STATPT some words\n NSTEP=1 $END\n", {}},
         {"behind the $END", " $CONTRL SCFTYP=RHF $END words\n", {}}});
}

TEST_CASE("Keywords in comments are found as the document reader takes them") {
    const std::string tail = " on, which stands in a comment";
    const std::string head = "Reading the deck as a document turns ";
    check_rows("commented-keyword",
               {{"behind a keyword",
                 " $SCF CONV=1 ! DIRSCF=.T.\n $END\n",
                 {"1:16 " + head + "DIRSCF of $SCF" + tail}},
                {"a line of its own",
                 " $SCF\n!conv=1 dirscf=.t.\n $END\n",
                 {"2:2 " + head + "conv of $SCF" + tail, "2:9 " + head + "dirscf of $SCF" + tail}},
                {"in a closed comment",
                 " $SCF ! CONV=1 ! $END\n",
                 {"1:9 " + head + "CONV of $SCF" + tail}},
                {"with an index",
                 " $STATPT ! IFREEZ(1)=2\n $END\n",
                 {"1:12 " + head + "IFREEZ(1) of $STATPT" + tail}},
                {"words only", " $SCF CONV=1 ! tight\n $END\n", {}},
                {"behind the $END", " $SCF CONV=1 $END ! DIRSCF=.T.\n", {}},
                {"between groups", "! CONV=1\n $SCF $END\n", {}},
                {"in cards", " $DATA\nt\nC1 ! A=1\n $END\n", {}}});
}
