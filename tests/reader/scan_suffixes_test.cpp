// Index suffixes: `NAME(2)`.
#include <cstddef>
#include <string>

#include <doctest/doctest.h>

#include "reader/scan_table.hpp"

using nurl::input::gamess::detail::scan_key_values;
using nurl::test::check_scans;
using nurl::test::Pairs;

TEST_CASE("A balanced suffix directly behind a name belongs to the key") {
    check_scans({
        {"numbers", "X(1)=2 X(2) = 3", {{"X(1)", "2", 0, 6}, {"X(2)", "3", 7, 15}}},
        {"letters in upper case", "x(a,b)=1", {{"X(A,B)", "1", 0, 8}}},
        {"inner blanks kept", "X( 1 )=2", {{"X( 1 )", "2", 0, 8}}},
        {"empty", "X()=1", {{"X()", "1", 0, 5}}},
        {"over a line end", "X(1,\n2)=3", {{"X(1,\n2)", "3", 0, 9}}},
        {"an equals sign inside", "A(B=1)=2", {{"A(B=1)", "2", 0, 8}}},
        {"a dollar sign inside", "A($)=1", {{"A($)", "1", 0, 6}}},
        {"lines around the equals sign", "X(1)\n=\n2", {{"X(1)", "2", 0, 8}}},
    });
}

TEST_CASE("Parentheses inside a suffix are counted") {
    check_scans({
        {"two levels", "X(a(1),b)=2", {{"X(A(1),B)", "2", 0, 11}}},
        {"side by side", "X((1)(2))=3", {{"X((1)(2))", "3", 0, 11}}},
        {"three levels", "X(((1)))=2", {{"X(((1)))", "2", 0, 10}}},
        {"two nested keys", "X((1))=2 Y((3))=4", {{"X((1))", "2", 0, 8}, {"Y((3))", "4", 9, 17}}},
        {"a nested key behind an unclosed one", "W( X((1))=2", {{"X((1))", "2", 3, 11}}},
    });
}

TEST_CASE("A suffix that is not closed is not taken") {
    check_scans({
        {"no closing parenthesis", "A(1=2", {}},
        {"one closing parenthesis too few", "A((1)=2", {}},
        {"a pair behind it", "A(1 B=2", {{"B", "2", 4, 7}}},
        {"a pair with a suffix behind it", "A(1 B(2)=3", {{"B(2)", "3", 4, 10}}},
        {"only an opening one", "A(", {}},
        {"many opening ones", "A((((B=1", {{"B", "1", 5, 8}}},
    });
}

TEST_CASE("A closing parenthesis in front of an opening one closes nothing") {
    check_scans({
        {"behind a name", "A)(1)=2", {}},
        {"in front of a name", ")A(1)=2", {{"A(1)", "2", 1, 7}}},
        {"behind nested ones", "A((1))=2) B=3", {{"A((1))", "2)", 0, 9}, {"B", "3", 10, 13}}},
    });
}

TEST_CASE("A suffix stands directly behind its name and there is one") {
    check_scans({
        {"a blank between", "A (1)=2", {}},
        {"a second suffix", "A(1)(2)=3", {}},
        {"a name behind the suffix", "A(1)B=2", {{"B", "2", 4, 7}}},
    });
}

TEST_CASE("A word with a suffix is skipped whole when no equals sign follows") {
    check_scans({
        {"at the end", "A(1)", {}},
        {"a pair inside the suffix", "A(B=1) C=2", {{"C", "2", 7, 10}}},
        {"a pair inside a nested suffix", "A((B=1)) C=2", {{"C", "2", 9, 12}}},
    });
}

TEST_CASE("The next pair ends a value also when it has a suffix") {
    check_scans({
        {"simple", "A=x B(1)=2", {{"A", "x", 0, 3}, {"B(1)", "2", 4, 10}}},
        {"blank behind the suffix", "A=x B(1) =2", {{"A", "x", 0, 3}, {"B(1)", "2", 4, 11}}},
        {"nested", "A=x B((1))=2", {{"A", "x", 0, 3}, {"B((1))", "2", 4, 12}}},
        {"a pair inside the suffix", "A=x B( C=2)=1", {{"A", "x", 0, 3}, {"B( C=2)", "1", 4, 13}}},
    });
}

TEST_CASE("A word with a suffix that opens no pair belongs to the value") {
    check_scans({
        {"no equals sign", "A=x B(1) 2", {{"A", "x B(1) 2", 0, 10}}},
        {"not closed", "A=x B(1 =2", {{"A", "x B(1 =2", 0, 10}}},
        {"a blank in front of the suffix", "A=x B (1)=2", {{"A", "x B (1)=2", 0, 11}}},
        {"a pair inside its suffix", "A=x B( C=2)", {{"A", "x B(", 0, 6}, {"C", "2)", 7, 11}}},
    });
}

TEST_CASE("Deep and long parentheses are read like short ones") {
    constexpr std::size_t depth = 20000;
    const std::string nested = std::string(depth, '(') + std::string(depth, ')');
    CHECK(scan_key_values("A" + nested + "=1") == Pairs{{"A" + nested, "1", 0, 2 * depth + 3}});
    CHECK(scan_key_values("A" + std::string(depth, '(') + " B=1") ==
          Pairs{{"B", "1", depth + 2, depth + 5}});
}
