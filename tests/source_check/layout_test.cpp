#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;

TEST_CASE("A header outside column 2 is found when GAMESS would know the group") {
    const std::string finding =
        "GAMESS does not find $SCF: its $ must stand in column 2, behind one space";
    check_rows("header-column",
               {{"column 2", " $SCF DIRSCF=.T. $END\n", {}},
                {"column 1", "$SCF DIRSCF=.T. $END\n", {"1:1 " + finding}},
                {"column 3", "  $SCF DIRSCF=.T. $END\n", {"1:3 " + finding}},
                {"column 2 behind a tab", "\t$SCF DIRSCF=.T. $END\n", {"1:2 " + finding}},
                {"behind a byte-order mark", "\xEF\xBB\xBF $SCF A=1 $END\n", {"1:5 " + finding}},
                {"small letters", "$scf dirscf=.t. $end\n", {"1:1 " + finding}},
                {"over several lines", "$SCF\n DIRSCF=.T.\n $END\n", {"1:1 " + finding}},
                {"without an end", "$SCF DIRSCF=.T.\n", {"1:1 " + finding}},
                {"a name alone", "$SCF\n", {"1:1 " + finding}},
                {"an unknown group", "$MINE A=1 $END\n", {}},
                {"prose", "   $SCF is not needed\n $CONTRL $END\n", {}},
                {"words that are closed", "   $SCF is needed $END\n", {"1:4 " + finding}},
                {"a comment", "! $SCF DIRSCF=.T. $END\n--$SCF A=1 $END\n", {}},
                {"a group that is found in any column", "$REKS A=1 $END\n", {}},
                {"inside $VB2000", " $VB2000\n$SCF\n $END\n", {}},
                {"behind another group", " $CONTRL $END $SCF DIRSCF=.T. $END\n", {}}});
}

TEST_CASE("A group that the deck names itself is looked for in column 2") {
    const std::string text = " $BASIS BASNAM(1)=MINE $END\n  $MINE\nN31 6\n\n $END\n";
    CHECK(found(text, "header-column") ==
          Lines{"2:3 GAMESS does not find $MINE: its $ must stand in column 2, behind one space"});
}

TEST_CASE("A header is moved to column 2 and nothing else changes") {
    CHECK(fixed("$SCF A=1 $END\r\n", "header-column") == " $SCF A=1 $END\r\n");
    CHECK(fixed("\t   $SCF\n  A=1\n $END", "header-column") == " $SCF\n  A=1\n $END");
    CHECK(fixed("\xEF\xBB\xBF $SCF $END\n", "header-column") == " $SCF $END\n");
}

TEST_CASE("A header line of 80 columns is not pushed beyond them") {
    const std::string text = "$SCF" + std::string(72, ' ') + "$END\n";
    CHECK(fixed(text, "header-column") == text);
    const std::string shorter = "$SCF" + std::string(71, ' ') + "$END  \n";
    CHECK(fixed(shorter, "header-column") == ' ' + shorter);
    CHECK(fixed("  " + text, "header-column") == ' ' + text);
}

TEST_CASE("A group behind the $END of another one is found") {
    const std::string scf = "GAMESS does not find $SCF behind the $END of $CONTRL on the same line";
    check_rows("second-group",
               {{"directly behind", " $CONTRL $END$SCF A=1 $END\n", {"1:14 " + scf}},
                {"behind blanks", " $CONTRL $END \t $SCF $END\n", {"1:17 " + scf}},
                {"behind an end in column 1", " $CONTRL\n$END $SCF\n $END\n", {"2:6 " + scf}},
                {"on the next line", " $CONTRL $END\n $SCF A=1 $END\n", {}},
                {"behind an open group", "$CONTRL\n$SCF A=1 $END\n", {}},
                {"commented out", " $CONTRL $END ! $SCF A=1 $END\n", {}},
                {"in prose", " $CONTRL $END and no $SCF A=1 $END\n", {}},
                {"unknown", " $CONTRL $END $MINE A=1 $END\n", {}}});
}

TEST_CASE("A second group gets a line of its own with the line end of the deck") {
    CHECK(fixed(" $CONTRL $END $SCF A=1 $END\n", "second-group") ==
          " $CONTRL $END\n $SCF A=1 $END\n");
    CHECK(fixed(" $CONTRL $END\t$SCF $END  $GUESS $END\r\n", "second-group") ==
          " $CONTRL $END\r\n $SCF $END\r\n $GUESS $END\r\n");
    CHECK(fixed(" $CONTRL $END$SCF $END", "second-group") == " $CONTRL $END\n $SCF $END");
}

TEST_CASE("A group without $END is found, punched ones by a rule of their own") {
    check_rows("missing-end", {{"before a header",
                                " $SCF A=1\n $CONTRL $END\n",
                                {"1:2 $SCF is not closed by $END before $CONTRL in line 2"}},
                               {"at the end",
                                " $DATA\nt\nC1\n",
                                {"1:2 $DATA is not closed by $END before the end "
                                 "of the text"}},
                               {"a misspelt end",
                                " $SCF A=1 END\n",
                                {"1:2 $SCF is not closed by $END before the "
                                 "end of the text"}},
                               {"a hidden end", " $SCF A=1 ! $END\n", {}},
                               {"a group that is not found", "$SCF A=1\n", {}},
                               {"a punched group", " $VEC\n 1  1\n", {}}});
    check_rows("open-punched-group", {{"not seen by GAMESS", "$VEC\n 1  1\n", {}},
                                      {"at the end",
                                       " $VEC\n 1  1\n",
                                       {"1:2 $VEC is not closed by $END before the end of "
                                        "the text"}},
                                      {"before a header",
                                       " $HESS\nx\n $VEC\n $END\n",
                                       {"1:2 $HESS is not closed by $END before $VEC in line 3"}},
                                      {"closed", " $VEC\n 1  1\n $END\n", {}}});
}

TEST_CASE("A missing $END is put behind the last keyword where that is certain") {
    CHECK(fixed(" $SCF CONV=1\n DIIS=.T. ! last\n\n $DATA\n", "missing-end") ==
          " $SCF CONV=1\n DIIS=.T. $END ! last\n\n $DATA\n");
    CHECK(fixed(" $SCF", "missing-end") == " $SCF $END");
    CHECK(fixed(" $STATPT\n IFREEZ(1)=1,2,\n", "missing-end") ==
          " $STATPT\n IFREEZ(1)=1,2 $END,\n");
    const std::string wide = " $SCF CONV=" + std::string(68, '1');
    CHECK(fixed(wide + "\r\n", "missing-end") == wide + "\r\n $END\r\n");
}

TEST_CASE("A missing $END is left to the author where it is not certain") {
    for (const std::string text :
         {" $SCF CONV=1\n\n some prose\n", " $SCF CONV=1\n\n prose = more\n", " $SCF words\n",
          " $SCF CONV=1 word\n", " $MINE A=1\n", " $MINE\n", " $DATA\nt\nC1\n"}) {
        CAPTURE(text);
        CHECK(found(text, "missing-end").size() == 1);
        CHECK(fixed(text, "missing-end") == text);
    }
}

TEST_CASE("A $END behind an open ! is found") {
    const std::string finding = "$SCF goes on, its $END stands behind a ! and does not count";
    check_rows("hidden-end",
               {{"in the comment of a keyword", " $SCF A=1 ! x $END\n", {"1:15 " + finding}},
                {"behind another $", " $SCF A=1 ! $$END\n", {"1:14 " + finding}},
                {"in small letters", " $SCF A=1 !$end\n", {"1:12 " + finding}},
                {"behind a closed comment", " $SCF A=1 ! x ! $END\n", {}},
                {"with one that counts below", " $SCF A=1 ! x $END\n $END\n", {}},
                {"in a group of cards",
                 " $ECP\nx ! $END\n",
                 {"2:5 $ECP goes on, its $END stands behind a ! and does not count"}},
                {"in a punched group, where ! means nothing", " $VEC\n ! $END\n", {}}});
}

TEST_CASE("The comment in front of a hidden $END is closed when nothing follows it") {
    CHECK(fixed(" $SCF A=1 ! x $END\n\n", "hidden-end") == " $SCF A=1 ! x ! $END\n\n");
    CHECK(fixed(" $SCF A=1 ! x $END\n ! y\n", "hidden-end") == " $SCF A=1 ! x ! $END\n ! y\n");
    for (const std::string goes_on : {" $SCF A=1 ! x $END\n B=1\n", " $SCF ! x $END\n stray\n"})
        CHECK(fixed(goes_on, "hidden-end") == goes_on);
    // As wide as asked for with a ` $END`, in front of which two more columns are needed.
    const auto line = [](std::size_t width) {
        return " $SCF A=1 !" + std::string(width - 16, 'x');
    };
    CHECK(fixed(line(78) + " $END\n", "hidden-end") == line(78) + " ! $END\n");
    CHECK(fixed(line(79) + " $END\n", "hidden-end") == line(79) + " $END\n");
    const std::string cards = " $ECP\nx ! $END\n";
    CHECK(fixed(cards, "hidden-end") == cards);
}

TEST_CASE("Formatted groups are asked for in capital letters, others are not") {
    check_rows("lower-case-group",
               {{"a header",
                 " $vec\n $END\n",
                 {"1:2 '$vec' must be in capital letters, $VEC is a formatted group"}},
                {"a numbered header",
                 " $Vec2\n $END\n",
                 {"1:2 '$Vec2' must be in capital letters, $VEC2 is a formatted group"}},
                {"a header with two digits",
                 " $vec90\n $END\n",
                 {"1:2 '$vec90' must be in capital letters, $VEC90 is a formatted group"}},
                {"another header",
                 " $hess\n $END\n",
                 {"1:2 '$hess' must be in capital letters, $HESS is a formatted group"}},
                {"an end", " $VEC\n $end\n", {}},
                {"a longer name", " $vec2+\n $END\n $vec:\n $END\n", {}},
                {"a name of digits", " $10\n $END\n", {}},
                {"a group with keywords", " $scf $end\n", {}},
                {"another punched group", " $pdb\n $end\n", {}},
                {"a header that is not found", "$vec\n $END\n", {}}});
    check_rows("lower-case-end",
               {{"an end",
                 " $VIB\n $End\n",
                 {"2:2 '$End' must be in capital letters, $VIB is a formatted group"}},
                {"capital letters", " $GRAD\n $END\n", {}},
                {"no end", " $DIPDR\n", {}},
                {"the end of a group that is not found", "$VEC\n $end\n", {}}});
}
