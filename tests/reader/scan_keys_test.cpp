// Where a key begins and ends, and what makes it one.
#include <cstddef>
#include <string>
#include <type_traits>

#include <doctest/doctest.h>

#include "reader/scan_table.hpp"

using namespace std::string_literals;  // texts with NUL bytes
using nurl::input::gamess::detail::ScannedKeyValue;
using nurl::test::check_scans;

TEST_CASE("A scanned pair is a key and a value and the two ends of its span") {
    const ScannedKeyValue pair{.key = "A", .value = "1", .begin = 2, .end = 5};
    const auto& [key, value, begin, end] = pair;
    CHECK(key == "A");
    CHECK(value == "1");
    CHECK(begin == 2);
    CHECK(end == 5);
    static_assert(std::is_same_v<decltype(pair.begin), std::size_t>);
    static_assert(std::is_same_v<decltype(pair.end), std::size_t>);
    CHECK(ScannedKeyValue{}.begin == 0);
    CHECK(ScannedKeyValue{}.end == 0);
}

TEST_CASE("Text without a pair gives no pairs") {
    check_scans({
        {"empty text", "", {}},
        {"blanks of every kind", " \t\r\n\v\f", {}},
        {"a word", "ABC", {}},
        {"a word and blanks", "ABC \n", {}},
        {"words", "NOTAKEY here", {}},
        {"numbers", "1 2.5 -3", {}},
        {"equals signs", "= == =", {}},
        {"a value without a key", "= 1", {}},
        {"a number in front of the equals sign", "12=1", {}},
        {"punctuation", "!\"#$%&'()*+,-./:;<>?@[]^`{|}~", {}},
        {"NUL", "\0"s, {}},
        {"bytes above ASCII", "\xC3\xA4=1", {}},
    });
}

TEST_CASE("A key is stored in upper case and a value as written") {
    check_scans({
        {"lower case", "scftyp=rhf", {{"SCFTYP", "rhf", 0, 10}}},
        {"mixed case", "RunTyp=Optimize", {{"RUNTYP", "Optimize", 0, 15}}},
        {"digits and underscore in a name", "a1_b2=c", {{"A1_B2", "c", 0, 7}}},
    });
}

TEST_CASE("A key begins at a letter and all before it is stepped over") {
    check_scans({
        {"blanks", " \t\r\n\v\fA=1", {{"A", "1", 6, 9}}},
        {"digits", "1ABC=2", {{"ABC", "2", 1, 6}}},
        {"underscore", "_A=1", {{"A", "1", 1, 4}}},
        {"dollar sign", "$A=1", {{"A", "1", 1, 4}}},
        {"equals sign", "=A=1", {{"A", "1", 1, 4}}},
        {"parenthesis", ")A=1", {{"A", "1", 1, 4}}},
        {"exclamation mark", "! A=1", {{"A", "1", 2, 5}}},
        {"hash", "#A=1", {{"A", "1", 1, 4}}},
        {"quote", "'A=1", {{"A", "1", 1, 4}}},
        {"NUL", "\0A=1"s, {{"A", "1", 1, 4}}},
        {"bytes above ASCII", "\xC3\xA4x=1", {{"X", "1", 2, 5}}},
    });
}

TEST_CASE("A key ends where the name characters end") {
    check_scans({
        {"hyphen", "A-B=1", {{"B", "1", 2, 5}}},
        {"point", "A.B=1", {{"B", "1", 2, 5}}},
        {"comma", "A,B=1", {{"B", "1", 2, 5}}},
        {"dollar sign", "A$B=1", {{"B", "1", 2, 5}}},
        {"closing parenthesis", "A)B=1", {{"B", "1", 2, 5}}},
        {"NUL", "A\0B=1"s, {{"B", "1", 2, 5}}},
        {"byte above ASCII", "A\xE4=1", {}},
    });
}

TEST_CASE("Words in front of a key are skipped whole") {
    check_scans({
        {"one word", "word A=1", {{"A", "1", 5, 8}}},
        {"two words", "some words A=1", {{"A", "1", 11, 14}}},
        {"a group name", "$CONTRL A=1", {{"A", "1", 8, 11}}},
        {"a word and a number", "N31 6 A=1", {{"A", "1", 6, 9}}},
        {"words on another line", "some\nwords\nA=1", {{"A", "1", 11, 14}}},
    });
}

TEST_CASE("Blanks of every kind may stand around the equals sign") {
    check_scans({
        {"none", "MULT=1", {{"MULT", "1", 0, 6}}},
        {"in front", "MULT =1", {{"MULT", "1", 0, 7}}},
        {"behind", "MULT= 1", {{"MULT", "1", 0, 7}}},
        {"both", "MULT = 1", {{"MULT", "1", 0, 8}}},
        {"line ends", "MULT\n=\r\n1", {{"MULT", "1", 0, 9}}},
        {"all six", "A \t\r\n\v\f= \t\r\n\v\f1", {{"A", "1", 0, 15}}},
    });
}

TEST_CASE("A key with nothing behind its equals sign gives no pair") {
    check_scans({
        {"end of the text", "MULT=", {}},
        {"blanks and the end of the text", "MULT= \r\n", {}},
        {"group end", "MULT= $END", {}},
        {"group end without a blank", "MULT=$END", {}},
        {"behind a pair", "A=1 MULT=", {{"A", "1", 0, 3}}},
        {"behind a pair, in front of a group end", "A=1 MULT= $END", {{"A", "1", 0, 3}}},
        {"in front of a pair behind a dollar sign", "MULT=$ A=1", {{"A", "1", 7, 10}}},
        {"in front of a dollar sign and a pair", "A= $B=2", {{"B", "2", 4, 7}}},
        {"with an index", "A(1)=", {}},
    });
}

TEST_CASE("Pairs are found in order with their spans") {
    check_scans({
        {"one blank between", "A=1 B=2", {{"A", "1", 0, 3}, {"B", "2", 4, 7}}},
        {"several blanks between", "A=1 \t B=2", {{"A", "1", 0, 3}, {"B", "2", 6, 9}}},
        {"lines", "A=1\nB=2\r\nC=3\n", {{"A", "1", 0, 3}, {"B", "2", 4, 7}, {"C", "3", 9, 13}}},
        {"the same key twice", "A=1 A=2", {{"A", "1", 0, 3}, {"A", "2", 4, 7}}},
        {"a blank in front of the second equals sign",
         "A=1 B =2",
         {{"A", "1", 0, 3}, {"B", "2", 4, 8}}},
        {"the second pair on three lines", "A=1 B\n=\n2", {{"A", "1", 0, 3}, {"B", "2", 4, 9}}},
        {"a group in text",
         " $BASIS GBASIS=N31 NGAUSS=6 $END",
         {{"GBASIS", "N31", 8, 18}, {"NGAUSS", "6", 19, 27}}},
    });
}
