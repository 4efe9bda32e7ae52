#include "nurl/input/gamess/source/wrap.hpp"

#include <string>

#include <doctest/doctest.h>

#include "source_compare/comparing.hpp"

namespace nurl::test {

TEST_CASE("A line that is short enough is not touched") {
    for (const std::string& text :
         {std::string{}, std::string{"no group\n"}, std::string{" $SCF A=1 B=2 $END\n"},
          " $SCF A=" + std::string(71, '1') + "\n $END\n",
          " $SCF A=1" + std::string(200, ' ') + "\n $END\n"})
        CHECK(wrapped(text) == text);
}

TEST_CASE("A long line is folded at the last blanks between two keywords that do") {
    CHECK(wrapped(" $SCF AAA=1  BBB=2   CCC=3\n $END\n", 20) ==
          " $SCF AAA=1  BBB=2\n CCC=3\n $END\n");
    CHECK(wrapped(" $SCF AAA=1 BBB=2 CCC=3 DDD=4 $END\n", 12) ==
          " $SCF AAA=1\n BBB=2 CCC=3\n DDD=4 $END\n");
    CHECK(wrapped(" $SCF AAA=1 BBB=2 CCC=3 DDD=4 EEE=5\n $END\n", 8) ==
          " $SCF\n AAA=1\n BBB=2\n CCC=3\n DDD=4\n EEE=5\n $END\n");
}

TEST_CASE("The example of the header folds in front of MAXIT") {
    CHECK(wrapped(" $SCF DIRSCF=.T. MAXIT=30 $END", 20) == " $SCF DIRSCF=.T.\n MAXIT=30 $END");
}

TEST_CASE("The width is that of the cards by default") {
    const std::string word(73, '1');
    CHECK(wrapped(" $SCF A=" + word + "\n $END\n") == " $SCF\n A=" + word + "\n $END\n");
    CHECK(nurl::input::gamess::source::line_width == 80);
}

TEST_CASE("A line goes on with the indentation it has") {
    CHECK(wrapped(" $SCF\n\t  AAA=1 BBB=2\n $END\n", 10) == " $SCF\n\t  AAA=1\n\t  BBB=2\n $END\n");
    CHECK(wrapped(" $SCF\nAAA=1 BBB=2\n $END\n", 10) == " $SCF\nAAA=1\nBBB=2\n $END\n");
    CHECK(wrapped(" $SCF\n ,AAA=1 BBB=2\n $END\n", 10) == " $SCF\n ,AAA=1\n BBB=2\n $END\n");
    CHECK(wrapped("$REKS AAA=1 BBB=2\n $END\n", 12) == "$REKS AAA=1\n BBB=2\n $END\n");
}

TEST_CASE("A list is folded behind its commas and at its blanks") {
    CHECK(wrapped(" $ZMAT IZMAT(1)=1,2,3,4,5,6\n $END\n", 20) ==
          " $ZMAT IZMAT(1)=1,2,\n 3,4,5,6\n $END\n");
    CHECK(wrapped(" $ZMAT\n IZMAT(1)=1 2 , 3, 4 5\n $END\n", 16) ==
          " $ZMAT\n IZMAT(1)=1 2 ,\n 3, 4 5\n $END\n");
}

TEST_CASE("A comma between two keywords stays behind the first one") {
    CHECK(wrapped(" $SCF\n AAA=1 , BBB=2\n $END\n", 10) == " $SCF\n AAA=1 ,\n BBB=2\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1,BBB=2\n $END\n", 10) == " $SCF\n AAA=1,\n BBB=2\n $END\n");
}

TEST_CASE("A line of commas is left as it is") {
    CHECK(wrapped(" $SCF\n ,,,,,,,,,\n $END\n", 8) == " $SCF\n ,,,,,,,,,\n $END\n");
    CHECK(wrapped(" $SCF A=1\n ,,,,,,,,,", 8) == " $SCF\n A=1\n ,,,,,,,,,");
}

TEST_CASE("A comma in an index, or in a quoted text, is no place to fold") {
    CHECK(wrapped(" $SCF\n A=1 VEL(11, 2)=1\n $END\n", 13) ==
          " $SCF\n A=1\n VEL(11, 2)=1\n $END\n");
    CHECK(wrapped(" $SCF\n A=1 B='c, d'\n $END\n", 11) == " $SCF\n A=1\n B='c, d'\n $END\n");
}

TEST_CASE("A keyword and its value stay together while they fit on a line") {
    CHECK(wrapped(" $SCF AAA=1 BBB = 2\n $END\n", 15) == " $SCF AAA=1\n BBB = 2\n $END\n");
    CHECK(wrapped(" $SCF AAA=1 BBB = 2\n $END\n", 17) == " $SCF AAA=1\n BBB = 2\n $END\n");
    CHECK(wrapped(" $SCF AAA=1 BBBBBB = 23456789\n $END\n", 15) ==
          " $SCF AAA=1\n BBBBBB =\n 23456789\n $END\n");
    CHECK(wrapped(" $SCF\n X=1 AAA= BBB=2\n $END\n", 12) == " $SCF\n X=1 AAA=\n BBB=2\n $END\n");
}

TEST_CASE("The end of a group goes to column two") {
    CHECK(wrapped(" $SCF\n    AAA=1 BBB=2 $END\n", 16) == " $SCF\n    AAA=1 BBB=2\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 BBB=2  $end behind\n", 14) ==
          " $SCF\n AAA=1 BBB=2\n $end behind\n");
}

TEST_CASE("What stands behind the end of a group stays there") {
    CHECK(wrapped(" $SCF AAA=1 $END a long comment\n", 18) == " $SCF AAA=1 $END a long comment\n");
    CHECK(wrapped(" $SCF AAA=1 BBB=2 $END a long comment\n", 18) ==
          " $SCF AAA=1 BBB=2\n $END a long comment\n");
}

TEST_CASE("A comment is never cut") {
    CHECK(wrapped(" $SCF\n AAA=1 ! one two\n $END\n", 12) == " $SCF\n AAA=1\n ! one two\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 ! one ! BBB=2\n $END\n", 14) ==
          " $SCF\n AAA=1 ! one !\n BBB=2\n $END\n");
    CHECK(wrapped(" $ZMAT\n I(1)=1, ! one ! 2,3\n $END\n", 14) ==
          " $ZMAT\n I(1)=1,\n ! one ! 2,3\n $END\n");
}

TEST_CASE("A comment that is too long for any line stays where it is") {
    CHECK(wrapped(" $SCF\n AAA=1 ! one two three\n $END\n", 12) ==
          " $SCF\n AAA=1 ! one two three\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 BBB=2 ! one two three\n $END\n", 9) ==
          " $SCF\n AAA=1\n BBB=2 ! one two three\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 ! one two three ! B=2\n $END\n", 12) ==
          " $SCF\n AAA=1 ! one two three !\n B=2\n $END\n");
    CHECK(wrapped(" $SCF\n LONGER=12345678 ! one two three\n $END\n", 12) ==
          " $SCF\n LONGER=12345678 ! one two three\n $END\n");
    CHECK(wrapped(" $SCF\n LONGER=12345678 !a!!one two three\n $END\n", 12) ==
          " $SCF\n LONGER=12345678 !a!!one two three\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 B=2!one two three\n $END\n", 8) ==
          " $SCF\n AAA=1\n B=2!one two three\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 B=2!one two three! ,\n $END\n", 8) ==
          " $SCF\n AAA=1\n B=2!one two three! ,\n $END\n");
}

TEST_CASE("A word that is too long stays where it is, and what follows goes on below") {
    CHECK(wrapped(" $SCF\n A=1 LONGER=12345678 B=2\n $END\n", 12) ==
          " $SCF\n A=1 LONGER=12345678\n B=2\n $END\n");
    CHECK(wrapped(" $SCF\n          A=1 B=2\n $END\n", 10) == " $SCF\n          A=1 B=2\n $END\n");
    CHECK(wrapped(" $SCF A=1 $END\n", 1) == " $SCF A=1 $END\n");
}

TEST_CASE("A fold has the line end of its line") {
    CHECK(wrapped(" $SCF AAA=1 BBB=2\r\n $END\n", 12) == " $SCF AAA=1\r\n BBB=2\r\n $END\n");
    CHECK(wrapped(" $SCF AAA=1 BBB=2\r $END\r", 12) == " $SCF AAA=1\r BBB=2\r $END\r");
    CHECK(wrapped("\r\n $SCF AAA=1 $END", 12) == "\r\n $SCF AAA=1\r\n $END");
    CHECK(wrapped(" $SCF AAA=1 $END", 12) == " $SCF AAA=1\n $END");
}

TEST_CASE("A sign that would be read as something else does not begin a line") {
    CHECK(wrapped(" $SCF\n AAA=1 $BBB CCC=2\n $END\n", 9) == " $SCF\n AAA=1 $BBB\n CCC=2\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 1234 = 2\n $END\n", 6) == " $SCF\n AAA=1 1234 =\n 2\n $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 1234 = 2\n $END\n", 9) == " $SCF\n AAA=1\n 1234 = 2\n $END\n");
}

TEST_CASE("An end that a comment hides is hidden after folding") {
    CHECK(wrapped(" $SCF AAA=1 BBB=2 ! $END\n CCC=3 $END\n", 12) ==
          " $SCF AAA=1\n BBB=2\n ! $END\n CCC=3 $END\n");
    CHECK(wrapped(" $SCF\n AAA=1 B='x!y' C=2 $END\n $END\n", 18) ==
          " $SCF\n AAA=1\n B='x!y' C=2 $END\n $END\n");
}

TEST_CASE("In $QUANPO a list that goes on has the sign for it") {
    CHECK(wrapped(" $QUANPO\n NFIXMM=1 2 3 4 5\n $END\n", 14) ==
          " $QUANPO\n NFIXMM=1 2 >\n 3 4 5\n $END\n");
    CHECK(wrapped(" $QUANPO\n NFIXMM=1 2 3 4 5 >\n 6\n $END\n", 14) ==
          " $QUANPO\n NFIXMM=1 2 >\n 3 4 5 >\n 6\n $END\n");
    CHECK(wrapped(" $QUANPO\n AAA=1 BBB=2 $END\n", 9) == " $QUANPO\n AAA=1\n BBB=2\n $END\n");
    CHECK(wrapped(" $QUANPO\n NFIXMM=1 > 3 4 5\n $END\n", 13) ==
          " $QUANPO\n NFIXMM=1 > 3 >\n 4 5\n $END\n");
    CHECK(wrapped(" $QUANPO\n N=1 2 !aaa! 3\n $END\n", 9) ==
          " $QUANPO\n N=1 2 >\n !aaa! 3\n $END\n");
    CHECK(wrapped(" $QUANPO\n A=12 234567!a! >\n 7\n $END\n", 11) ==
          " $QUANPO\n A=12 234567!a! >\n 7\n $END\n");
    CHECK(wrapped(" $QUANPO\n A=1 23456!a! 7\n $END\n", 10) ==
          " $QUANPO\n A=1 23456!a! >\n 7\n $END\n");
}

TEST_CASE("Groups without keywords and groups that GAMESS does not see stay as they are") {
    for (const std::string& text :
         {std::string{" $DATA\na title of some length\nC1\nO 8.0 0.0 0.0 0.0\n $END\n"},
          std::string{" $VEC\n 1  1 1.0E+00 2.0E+00\n $END\n"},
          std::string{" $ECP\nA B C D E F G H\n $END\n"}, std::string{" $ECP A B C D E F $END\n"},
          std::string{"$SCF AAA=1 BBB=2 CCC=3 $END\n"},
          std::string{"a long line between two groups\n"}})
        CHECK(wrapped(text, 8) == text);
}

TEST_CASE("A group that is not closed is folded up to where it ends") {
    CHECK(wrapped(" $SCF AAA=1 BBB=2", 12) == " $SCF AAA=1\n BBB=2");
    CHECK(wrapped(" $SCF AAA=1 BBB=2\n $DATA\na title\n $END\n", 12) ==
          " $SCF AAA=1\n BBB=2\n $DATA\na title\n $END\n");
}

TEST_CASE("Folded lines of a group are indented like its header") {
    const std::string a = "A=" + std::string(40, '1');
    const std::string b = "B=" + std::string(40, '2');
    CHECK(wrapped("   $REKS " + a + " " + b + " $END\n") ==
          "   $REKS " + a + "\n   " + b + " $END\n");
}

TEST_CASE("Many values are kept behind their names") {
    const std::string ab = " $SCF A=" + std::string(30, '1') + " B=" + std::string(30, '2');
    const std::string c = " C=" + std::string(75, '3');
    CHECK(wrapped(ab + c + " D=1 $END\n") == ab + "\n" + c + "\n D=1 $END\n");
    const std::string value(74, '1');
    CHECK(wrapped(" $SCF A= " + value + " B= " + value + " C= " + value + " D= " + value +
                  " $END\n") == " $SCF\n A= " + value + "\n B= " + value + "\n C= " + value +
                                    "\n D= " + value + "\n $END\n");
}

TEST_CASE("A line of 80 columns is not folded, even one that cannot be glued") {
    const std::string text = " $QUANPO A=" + std::string(67, '1') + ",2\n $END\n";
    CHECK(wrapped(text) == text);
}

TEST_CASE("A comment at the end of a group without $END is not glued") {
    const std::string a = " $QUANPO A=" + std::string(60, '1');
    const std::string note = " ! " + std::string(20, 'c') + "\n";
    CHECK(wrapped(a + note) == a + "\n" + note);
}

TEST_CASE("What follows $END does not keep it from its own line, whatever it ends with") {
    const std::string a = " $SCF A=" + std::string(70, '1');
    const std::string end = " $END " + std::string(80, 'x') + ">\n";
    CHECK(wrapped(a + end) == a + "\n" + end);
}

TEST_CASE("A word with its comma that is too long for any line stays where it is") {
    const std::string text = " $SCF B= " + std::string(79, '1') + ",\n C=2 $END\n";
    CHECK(wrapped(text) == text);
}

TEST_CASE("A `>` is a word like others where lines are not glued, and so is one with more in it") {
    const std::string scf = " $SCF A=" + std::string(72, '1');
    CHECK(wrapped(scf + " > 2 $END\n") == scf + "\n > 2 $END\n");
    const std::string a = " A=" + std::string(72, '1');
    CHECK(wrapped(" $QUANPO" + a + " >BBBBBBBBBB $END\n") ==
          " $QUANPO\n" + a + " >\n >BBBBBBBBBB $END\n");
}

}  // namespace nurl::test
