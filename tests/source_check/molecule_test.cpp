#include <algorithm>

#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::test;
using namespace nurl::input::gamess::source;

namespace {

const std::string basis = " $BASIS GBASIS=STO NGAUSS=3 $END\n";
const std::string oxygen = "O 8.0 0.0 0.0 0.0\n";

/// A molecule with these cards behind its title, in a deck with a `$BASIS`.
std::string with_basis(const std::string& cards) {
    return basis + " $DATA\nt\n" + cards + " $END\n";
}

/// As `with_basis`, with the basis sets under the atoms.
std::string inline_basis(const std::string& cards) { return " $DATA\nt\n" + cards + " $END\n"; }

}  // namespace

TEST_CASE("A blank card is missed behind every point group but C1") {
    const std::string tail = " needs a blank card before the first atom";
    check_rows(
        "missing-blank-card",
        {{"C1", with_basis("C1\n" + oxygen), {}},
         {"c1", with_basis(" c1 0\n" + oxygen), {}},
         {"no point group", with_basis("\n" + oxygen), {}},
         {"missing", with_basis("CNV 2\n" + oxygen), {"5:1 Point group CNV 2" + tail}},
         {"missing, with a comment",
          with_basis("Td ! x\n" + oxygen),
          {"5:1 Point group Td" + tail}},
         {"there", with_basis("CNV 2\n\n" + oxygen), {}},
         {"axes", with_basis("CS\n0 0 0 0 0 1\n1 0 0 NORMAL\n" + oxygen), {}},
         {"an unknown point group", with_basis("C2V\n" + oxygen), {"5:1 Point group C2V" + tail}},
         {"no atoms", with_basis("CNV 2\n"), {}}});
}

TEST_CASE("A missing blank card is put in front of the first atom") {
    CHECK(fixed(with_basis("CS\n" + oxygen), "missing-blank-card") ==
          with_basis("CS\n\n" + oxygen));
    const std::string one_line = with_basis("CS ; " + oxygen);
    CHECK(found(one_line, "missing-blank-card").size() == 1);
    CHECK(fixed(one_line, "missing-blank-card") == one_line);
}

TEST_CASE("A blank card behind C1 is found and removed") {
    const std::string finding = "Behind C1 the first atom follows at once, without a blank card";
    check_rows("blank-card-after-c1",
               {{"none", with_basis("C1\n" + oxygen), {}},
                {"one", with_basis("C1\n\n" + oxygen), {"5:1 " + finding}},
                {"two", with_basis("C1\n \n\n" + oxygen), {"5:1 " + finding}},
                {"two in a line", with_basis("C1\n;;\n" + oxygen), {"5:1 " + finding}},
                {"a comment", with_basis("C1\n! x\n" + oxygen), {}},
                {"between atoms", with_basis("C1\n" + oxygen + "\n" + oxygen), {}},
                {"behind another point group", with_basis("CS\n\n" + oxygen), {}},
                {"two behind another point group", with_basis("CS\n\n\n" + oxygen), {}},
                {"no atoms", with_basis("C1\n\n"), {}}});
    CHECK(fixed(with_basis("C1\n \n\n" + oxygen), "blank-card-after-c1") ==
          with_basis("C1\n" + oxygen));
    CHECK(fixed(with_basis("C1\n;;\n" + oxygen), "blank-card-after-c1") ==
          with_basis("C1\n" + oxygen));
}

TEST_CASE("One fix removes all blank cards behind C1") {
    Deck deck{with_basis("C1\n \n\n" + oxygen)};
    const std::vector<Finding> findings = check(deck);
    const auto hit = std::ranges::find(findings, "blank-card-after-c1", &Finding::rule);
    REQUIRE(hit != findings.end());
    deck.apply(hit->fix);
    CHECK(deck.text() == with_basis("C1\n" + oxygen));
}

TEST_CASE("A basis set that no blank card closes is found at what follows it") {
    const std::string set = "S 1\n1 0.5 1.0\n";
    const std::string hydrogen = "H 1.0 0.0 0.0 1.0\n";
    const std::string before_atom =
        "No blank card closes the basis set of atom 'O' before this atom";
    const std::string before_end =
        "No blank card closes the last basis set before the end of $DATA";
    check_rows("missing-blank-after-basis",
               {{"closed", inline_basis("C1\n" + oxygen + set + "\n" + hydrogen + set + "\n"), {}},
                {"before an atom",
                 inline_basis("C1\n" + oxygen + set + hydrogen + set + "\n"),
                 {"7:1 " + before_atom}},
                {"before the end", inline_basis("C1\n" + oxygen + set), {"6:1 " + before_end}},
                {"before both",
                 inline_basis("C1\n" + oxygen + set + hydrogen + set),
                 {"7:1 " + before_atom, "9:1 " + before_end}},
                {"before an atom without one",
                 inline_basis("C1\n" + oxygen + set + hydrogen),
                 {"7:1 " + before_atom}},
                {"before what need not be an atom",
                 inline_basis("C1\n" + oxygen + set + "OXY 8.0 0.0 0.0 1.0\n" + set + "\n"),
                 {}},
                {"a scale factor for each shell",
                 inline_basis("C1\n" + oxygen + "N31 6 1.0 1.0 1.0\n\n"),
                 {}},
                {"a semiempirical method",
                 inline_basis("C1\n" + oxygen + "AM1\n" + hydrogen + "AM1\n"),
                 {}},
                {"no basis set at all", inline_basis("C1\n" + oxygen + hydrogen), {}},
                {"a $BASIS", with_basis("C1\n" + oxygen + hydrogen), {}}});
}

TEST_CASE("A blank line is put behind a basis set") {
    const std::string set = "S 1\n1 0.5 1.0\n";
    const std::string hydrogen = "H 1.0 0.0 0.0 1.0\n";
    CHECK(
        fixed(inline_basis("C1\n" + oxygen + set + hydrogen + set), "missing-blank-after-basis") ==
        inline_basis("C1\n" + oxygen + set + "\n" + hydrogen + set + "\n"));
    CHECK(fixed(" $DATA\r\nt\r\nC1\r\nO 8 0 0 0\r\nS 1\r\n1 1 1\r\n$END\r\n",
                "missing-blank-after-basis") ==
          " $DATA\r\nt\r\nC1\r\nO 8 0 0 0\r\nS 1\r\n1 1 1\r\n\r\n$END\r\n");
    CHECK(fixed(" $DATA\nt\rC1\rO 8 0 0 0\rS 1\r1 1 1\r $END\r\n", "missing-blank-after-basis") ==
          " $DATA\nt\rC1\rO 8 0 0 0\rS 1\r1 1 1\r\r $END\r\n");
    CHECK(fixed(inline_basis("C1\n" + oxygen + "S 1\n1 0.5 1.0 ! last\n"),
                "missing-blank-after-basis") ==
          inline_basis("C1\n" + oxygen + "S 1\n1 0.5 1.0 ! last\n\n"));
    const std::string one_line = " $DATA\nt\nC1\n" + oxygen + "S 1 ; 1 0.5 1.0 $END\n";
    const std::string open = " $DATA\nt\nC1\nO 8 0 0 0\nS 1\n1 1 1";
    CHECK(found(open, "missing-blank-after-basis").size() == 1);
    CHECK(fixed(open, "missing-blank-after-basis") == open);
    CHECK(found(one_line, "missing-blank-after-basis").size() == 1);
    CHECK(fixed(one_line, "missing-blank-after-basis") == one_line);
}

TEST_CASE("A point group that GAMESS does not know is found") {
    check_rows(
        "point-group-name",
        {{"known", with_basis("Cnv 2, ! x\n\n" + oxygen), {}},
         {"in another notation",
          with_basis("C2v\n\n" + oxygen),
          {"4:1 GAMESS knows no point group 'C2v' | did you mean CNV 2?"}},
         {"of no notation",
          with_basis("C9v\n\n" + oxygen),
          {"4:1 GAMESS knows no point group 'C9v'"}},
         {"without its order",
          with_basis("DNH\n\n" + oxygen),
          {"4:1 Point group DNH needs the order of its axis, 1 to 8, behind it"}},
         {"with too high an order",
          with_basis("DNH 9\n\n" + oxygen),
          {"4:1 Point group DNH needs the order of its axis, 1 to 8, behind it"}},
         {"with an order below the lowest",
          with_basis("DNH 0\n\n" + oxygen),
          {"4:1 Point group DNH needs the order of its axis, 1 to 8, behind it"}},
         {"an atom in its place",
          with_basis(oxygen + oxygen),
          {"4:1 The second card of $DATA names no point group"}},
         {"a blank card in its place",
          with_basis("\n" + oxygen),
          {"4:1 The second card of $DATA names no point group"}},
         {"of the lowest order", with_basis("CN 1\n\n" + oxygen), {}},
         {"of the highest order", with_basis("CN 8\n\n" + oxygen), {}},
         {"with words behind it that make no atom", with_basis("O 8 0 0 x\n\n" + oxygen), {}},
         {"no card at all", " $DATA\nt\n $END\n", {}}});
    CHECK(fixed(with_basis("D6h\n\n" + oxygen), "point-group-name") ==
          with_basis("DNH 6\n\n" + oxygen));
}
