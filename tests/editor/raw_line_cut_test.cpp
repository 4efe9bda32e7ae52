#include "editor/raw_line_cut.hpp"

#include <array>
#include <string>

#include <doctest/doctest.h>

#include "support/groups.hpp"
#include "support/show_model.hpp"

using nurl::input::gamess::detail::cut_keyword;
using nurl::test::Lines;

namespace {

struct CutCase {
    const char* line;
    const char* rest;  ///< what is left of it when "K" is cut out
    bool found;
};

constexpr std::array<CutCase, 34> cut_cases{{
    // No pairs: only the ends are trimmed.
    {"", "", false},
    {" \t\r\n", "", false},
    {"  two   words\t", "two   words", false},
    {"\v two \f", "\v two \f", false},
    {"K", "K", false},
    {" K  = ", "K  =", false},
    {"K=$", "K=$", false},
    // Pairs of other keywords: runs of white space become single blanks.
    {"A=1", "A=1", false},
    {"  x \t y  A=1   B=2\n", "x y A=1 B=2", false},
    {"A \v=\f 1", "A = 1", false},
    {"\vx A=1\f", "x A=1", false},
    {"A=two   words  B( 1  2 )=3", "A=two words B( 1 2 )=3", false},
    {"KK=1 XK=2 K_=3", "KK=1 XK=2 K_=3", false},
    {"K(1)=1", "K(1)=1", false},
    {"A='K=2'", "A='K=2'", false},
    {"A= K=2", "A= K=2", false},
    // The keyword: its pairs go, with all of their value.
    {"K=1", "", true},
    {"k = 1", "", true},
    {"  K=1  ", "", true},
    {"K=1 A=2", "A=2", true},
    {"A=2 K=1", "A=2", true},
    {"A=2   K=1   B=3", "A=2 B=3", true},
    {"text K=1", "text", true},
    {"K=two words, a list (1) A=2", "A=2", true},
    {"K=1 k=2 K =3", "", true},
    {"K=1 A=2 K=3 B=4 K=5", "A=2 B=4", true},
    {"x  K=1", "x", true},
    {"1K=2", "1", true},
    {"(K=2", "(", true},
    // A dollar ends a value and stays with what follows it.
    {"K=1$A=2", "$A=2", true},
    {"K=1 $A=2", "$A=2", true},
    {"A=1$K=2 B=3", "A=1$ B=3", true},
    {"K=1 $ text", "$ text", true},
    {"A=1 $END K=2", "A=1 $END", true},
}};

}  // namespace

TEST_CASE("A line loses the pairs of a keyword and the blanks around them") {
    for (const CutCase& row : cut_cases) {
        CAPTURE(row.line);
        const auto cut = cut_keyword({row.line}, "K");
        CHECK(cut.lines == Lines{row.rest});
        CHECK(cut.found == row.found);
    }
}

TEST_CASE("A keyword with an index is cut by its full name") {
    const auto cut = cut_keyword({"x(1)=1 X(2)=2 X=3 X( 1 )=4"}, "X(1)");
    CHECK(cut.lines == Lines{"X(2)=2 X=3 X( 1 )=4"});
    CHECK(cut.found);
}

TEST_CASE("Every line stays, found tells of any of them") {
    const auto cut = cut_keyword({"K=1", "", "a  b", "A=1  K=2"}, "K");
    CHECK(cut.lines == Lines{"", "", "a  b", "A=1"});
    CHECK(cut.found);
    CHECK(cut_keyword({"", "A=1"}, "K").lines == Lines{"", "A=1"});
    CHECK_FALSE(cut_keyword({"", "A=1"}, "K").found);
    CHECK(cut_keyword({}, "K").lines.empty());
    CHECK_FALSE(cut_keyword({}, "K").found);
}

TEST_CASE("Bytes of any kind stay in the text") {
    using namespace std::string_literals;
    const std::string with_nul = "a\0b \xC3\xA9 A=1 K=2 B=\0\xFF"s;
    const std::string expected = "a\0b \xC3\xA9 A=1 B=\0\xFF"s;
    CHECK(cut_keyword({with_nul}, "K").lines == Lines{expected});
}

TEST_CASE("A long line is cut as a short one") {
    std::string line;
    std::string rest;
    for (int i = 0; i < 3000; ++i) {
        line += "K=" + std::to_string(i) + "  A" + std::to_string(i) + "=x ";
        rest += (i == 0 ? "A" : " A") + std::to_string(i) + "=x";
    }
    CHECK(cut_keyword({line}, "K").lines == Lines{rest});
}
