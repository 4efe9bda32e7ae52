// Groups that the library knows as raw: orbitals, Hessians and the like.
#include <string>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

TEST_CASE("Every line of a raw group that is not blank becomes one raw line") {
    const GamessInput deck = read_silently(
        " $VEC\n"
        " 1  1 9.94E-01 2.0E-02\n"
        "\n"
        "   \n"
        "\t1  2-2.18E-01 1.0D-03  \n"
        " $END\n");
    CHECK(deck.sections ==
          Sections{{"VEC", {}, {"1  1 9.94E-01 2.0E-02", "1  2-2.18E-01 1.0D-03"}}});
}

TEST_CASE("A raw group has no entries whatever its lines look like") {
    CHECK(read_silently("$VEC SCFTYP=RHF A=1\n B = 2\n C(1)=3 $END").sections ==
          Sections{{"VEC", {}, {"SCFTYP=RHF A=1", "B = 2", "C(1)=3"}}});
}

TEST_CASE("Text on the header and in front of the end of a raw group is kept") {
    CHECK(read_silently("$HESS from a run \n 1 1 0.5\n 2 1 0.5 $END text").sections ==
          Sections{{"HESS", {}, {"from a run", "1 1 0.5", "2 1 0.5"}}});
    CHECK(read_silently("$VEC one line $END").sections == Sections{{"VEC", {}, {"one line"}}});
}

TEST_CASE("Comments and lone dollar signs in a raw group are raw lines") {
    CHECK(read_silently("$GRAD\n! comment\n# comment\n$\n $$x\n$END").sections ==
          Sections{{"GRAD", {}, {"! comment", "# comment", "$", "$$x"}}});
}

TEST_CASE("A header ends a raw group") {
    const ParseResult result = read("$VEC\n1 1\n$SCF DIIS=.T. $END");
    CHECK(result.input.sections == Sections{{"VEC", {}, {"1 1"}}, {"SCF", {{"DIIS", ".T."}}, {}}});
}

TEST_CASE("Seventeen groups beside DATA are raw without a schema file") {
    for (const std::string name :
         {"ALPDR", "CISVEC", "DATAL", "DATAS", "DFTBAO", "DFTBSK", "DIPDR", "DM", "EQGEOM", "GLOWT",
          "GRAD", "HESS", "HLOWT", "VEC", "VIB", "VIB2", "VIBSCF"}) {
        CAPTURE(name);
        CHECK(read_silently("$" + name + " A=1 $END").sections == Sections{{name, {}, {"A=1"}}});
    }
}

TEST_CASE("A group of unknown name is read for keywords") {
    CHECK(read_silently("$NOSUCH A=1 words B=2 $END").sections ==
          Sections{{"NOSUCH", {{"A", "1 words"}, {"B", "2"}}, {}}});
}
