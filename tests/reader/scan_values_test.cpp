// Where a value ends, and what of it is kept.
#include <string>

#include <doctest/doctest.h>

#include "reader/scan_table.hpp"

using namespace std::string_literals;  // texts with NUL bytes
using nurl::test::check_scans;

TEST_CASE("A value ends at a dollar sign wherever it stands") {
    check_scans({
        {"behind a word", "KEY=value$END", {{"KEY", "value", 0, 9}}},
        {"inside a word", "K=A$B", {{"K", "A", 0, 3}}},
        {"behind a blank", "A=1 $END", {{"A", "1", 0, 3}}},
        {"behind blanks of every kind", "A=1 \t\r\n\v\f$END", {{"A", "1", 0, 3}}},
        {"behind several words", "A=x y z $END", {{"A", "x y z", 0, 7}}},
        {"inside parentheses", "A=(1$2)", {{"A", "(1", 0, 4}}},
        {"inside quotes", "A='$'", {{"A", "'", 0, 3}}},
    });
}

TEST_CASE("Scanning goes on behind the dollar sign") {
    check_scans({
        {"pair directly behind", "A=1$B=2", {{"A", "1", 0, 3}, {"B", "2", 4, 7}}},
        {"pair behind a blank and a dollar sign", "A=1 $B=2", {{"A", "1", 0, 3}, {"B", "2", 5, 8}}},
        {"pair behind a group name", "A=1$X B=2", {{"A", "1", 0, 3}, {"B", "2", 6, 9}}},
    });
}

TEST_CASE("A value ends in front of the blanks before the next pair") {
    check_scans({
        {"two words",
         "TITLE=two words NEXT=1",
         {{"TITLE", "two words", 0, 15}, {"NEXT", "1", 16, 22}}},
        {"the water dimer",
         "TITLE=water dimer MULT=1",
         {{"TITLE", "water dimer", 0, 17}, {"MULT", "1", 18, 24}}},
        {"a word that is no key", "A=1 B C=2", {{"A", "1 B", 0, 5}, {"C", "2", 6, 9}}},
        {"a comment", "A=1 ! B=2", {{"A", "1 !", 0, 5}, {"B", "2", 6, 9}}},
        {"a list over two lines",
         "A=(1,2,\n3) B=2",
         {{"A", "(1,2,\n3)", 0, 10}, {"B", "2", 11, 14}}},
        {"a pair without a value", "A=1 B=", {{"A", "1", 0, 3}}},
        {"quotes mean nothing", "TITLE='a b=c'", {{"TITLE", "'a", 0, 8}, {"B", "c'", 9, 13}}},
    });
}

TEST_CASE("Blanks in front of anything else belong to the value") {
    check_scans({
        {"a word", "A=1 B", {{"A", "1 B", 0, 5}}},
        {"a number", "A=1 2 3", {{"A", "1 2 3", 0, 7}}},
        {"a digit in front of a name", "A=1 2B=3", {{"A", "1 2B=3", 0, 8}}},
        {"an underscore in front of a name", "A=1 _B=3", {{"A", "1 _B=3", 0, 8}}},
        {"a parenthesis in front of a name", "A=1 (B=3)", {{"A", "1 (B=3)", 0, 9}}},
        {"an equals sign", "A=1 =2", {{"A", "1 =2", 0, 6}}},
        {"a comma", "A=1 , 2", {{"A", "1 , 2", 0, 7}}},
        {"a byte above ASCII", "A=1 \xE4=2", {{"A", "1 \xE4=2", 0, 7}}},
        {"NUL", "A=1 \0B=2"s, {{"A", "1 \0B=2"s, 0, 8}}},
        {"runs of blanks are kept", "A=x  \t y", {{"A", "x  \t y", 0, 8}}},
        {"line ends are kept", "A=x\r\ny", {{"A", "x\r\ny", 0, 6}}},
    });
}

TEST_CASE("An equals sign without blanks in front belongs to the value") {
    check_scans({
        {"doubled", "A==1", {{"A", "=1", 0, 4}}},
        {"doubled with blanks", "A = = 1", {{"A", "= 1", 0, 7}}},
        {"a key directly behind the equals sign", "A=B=1", {{"A", "B=1", 0, 5}}},
        {"a key behind the equals sign and blanks", "A= B=1", {{"A", "B=1", 0, 6}}},
        {"a key on the next line", "A=\nB=1 C=2", {{"A", "B=1", 0, 6}, {"C", "2", 7, 10}}},
        {"glued pairs", "A=1B=2", {{"A", "1B=2", 0, 6}}},
        {"pairs with a comma", "A=1,B=2", {{"A", "1,B=2", 0, 7}}},
    });
}

TEST_CASE("A value at the end of the text ends there and is trimmed") {
    check_scans({
        {"nothing behind", "A=1", {{"A", "1", 0, 3}}},
        {"blanks behind", "A=1  ", {{"A", "1", 0, 5}}},
        {"a line end behind", "A=1\r\n", {{"A", "1", 0, 5}}},
        {"blanks around", "A= \t 1 2 \t\r\n", {{"A", "1 2", 0, 12}}},
    });
}

TEST_CASE("Vertical tab and form feed are blanks but stay at the end of a value") {
    check_scans({
        {"vertical tab last", "A=1\v", {{"A", "1\v", 0, 4}}},
        {"form feed last", "A=1\f", {{"A", "1\f", 0, 4}}},
        {"trimmed behind a form feed", "A=1\f \t", {{"A", "1\f", 0, 6}}},
        {"not trimmed in front of a vertical tab", "A=1 \v", {{"A", "1 \v", 0, 5}}},
        {"inside", "A=1\v2\f3", {{"A", "1\v2\f3", 0, 7}}},
        {"in front of a value", "A=\v\f1", {{"A", "1", 0, 5}}},
        {"in front of the next pair", "A=1\vB=2", {{"A", "1", 0, 3}, {"B", "2", 4, 7}}},
        {"in front of a dollar sign", "A=1\f$", {{"A", "1", 0, 3}}},
    });
}

TEST_CASE("Bytes outside ASCII and NUL are part of a value") {
    check_scans({
        {"NUL alone", "A=\0"s, {{"A", "\0"s, 0, 3}}},
        {"NUL inside", "A=x\0y"s, {{"A", "x\0y"s, 0, 5}}},
        {"UTF-8", "A=\xC3\xA4 B=1", {{"A", "\xC3\xA4", 0, 4}, {"B", "1", 5, 8}}},
        {"no-break space", "A=\xA0", {{"A", "\xA0", 0, 3}}},
        {"every bit set", "A=\xFF\xFE", {{"A", "\xFF\xFE", 0, 4}}},
    });
}

TEST_CASE("The case and the wording of a value are kept") {
    check_scans({
        {"case", "DFTTYP=b3Lyp", {{"DFTTYP", "b3Lyp", 0, 12}}},
        {"quotes", "A='x y'", {{"A", "'x y'", 0, 7}}},
        {"repeat counts", "A=3*0.0,1.D+00", {{"A", "3*0.0,1.D+00", 0, 14}}},
        {"a path", "EXTBAS=/usr/lib/a.bas", {{"EXTBAS", "/usr/lib/a.bas", 0, 21}}},
    });
}
