#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

TEST_CASE("A group that nobody knows is found, with the names it is near to") {
    const std::string tail = " is not currently described by the GAMESS schema";
    check_rows("unknown-group",
               {{"a known group", " $contrl $end\n", {}},
                {"a misspelt one",
                 " $CONTROL $END\n",
                 {"1:2 Section $CONTROL" + tail + " | did you mean CONTRL?"}},
                {"in small letters",
                 " $mpd $end\n",
                 {"1:2 Section $MPD" + tail + " | did you mean MD or MP2?"}},
                {"far from all", " $IODINE $END\n", {"1:2 Section $IODINE" + tail}},
                {"each time",
                 " $XYZZY $END\n $XYZZY $END\n",
                 {"1:2 Section $XYZZY" + tail, "2:2 Section $XYZZY" + tail}},
                {"one that GAMESS does not see anyway", "$XYZZY $END\n", {}},
                {"named by BASNAM",
                 " $BASIS BASNAM(1)=MINE,H $END\n $MINE\nx\n $END\n $H\nx\n $END\n",
                 {}},
                {"named by FRAGNAME",
                 " $EFRAG\nCOORD=CART\nFRAGNAME=MINE\n $END\n $mine\nx\n $END\n",
                 {}}});
}

TEST_CASE("A repeated group is found at its second copy, saying which copy counts") {
    const std::string all = " already: all copies are read, the last value of a keyword counts";
    const std::string first = " already: that one is read, this one is not";
    check_rows(
        "repeated-group",
        {{"once", " $SCF $END\n $CONTRL $END\n", {}},
         {"a group with keywords",
          " $SCF $END\n\n $scf $END\n $SCF $END\n",
          {"3:2 $SCF stands in line 1" + all, "4:2 $SCF stands in line 1" + all}},
         {"a molecule", " $DATA\n $END\n $DATA\n $END\n", {"3:2 $DATA stands in line 1" + first}},
         {"punched lines", " $VEC\n $END\n $VEC\n $END\n", {"3:2 $VEC stands in line 1" + first}},
         {"numbered ones", " $VEC1\n $END\n $VEC2\n $END\n", {}},
         {"one that is not found", "$SCF $END\n $SCF $END\n", {}},
         {"meant to be repeated", " $FCM\n $END\n $FCM\n $END\n", {}},
         {"named by BASNAM",
          " $BASIS BASNAM(1)=MINE $END\n $MINE\nx\n $END\n $MINE\nx\n $END\n",
          {"5:2 $MINE stands in line 2" + first}},
         {"unknown", " $XYZZY $END\n $XYZZY $END\n", {}}});
}
