#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

constexpr std::string_view mixed =
    "comment\n"
    " $data\n"
    "Water\n"
    "CNV 2\n"
    "\n"
    "O 8.0 0.0 0.0 0.1\n"
    "   N31 6\n"
    " $end\n"
    " $contrl scftyp=rhf runtyp=energy\n"
    " ! note\n"
    " $end\n"
    " $VEC\n"
    " 1  1 0.1\n"
    " 1  2 0.2\n"
    " $END\n"
    " $strange a=1 $end\n"
    " $CONTRL ICHARG=1 $END\n";

}  // namespace

TEST_CASE("Groups are listed in the order of the text, repeated ones each time") {
    const Workplace place;
    place.make("mixed.inp", mixed);
    const Outcome outcome = place.run({"list", "mixed.inp"});
    CHECK(outcome.out ==
          "line  group    kind        keywords  raw lines\n"
          "   2  DATA     data               0          2\n"
          "   9  CONTRL   structured         2          1\n"
          "  12  VEC      raw                0          2\n"
          "  16  STRANGE  keywords           1          0\n"
          "  17  CONTRL   structured         1          0\n");
    CHECK(outcome.err.empty());
    CHECK(outcome.status == 0);
}

TEST_CASE("The list as JSON") {
    const Workplace place;
    place.make("a.inp", "\n $scf dirscf=.t. $end\n $DATA\nT\nC1\n$END\n");
    CHECK(place.run({"list", "--json", "a.inp"}).out == R"({
  "groups": [
    {
      "name": "SCF",
      "kind": "structured",
      "line": 2,
      "keywords": 1,
      "raw_lines": 0
    },
    {
      "name": "DATA",
      "kind": "data",
      "line": 3,
      "keywords": 0,
      "raw_lines": 0
    }
  ]
}
)");
}

TEST_CASE("A dash lists standard input") {
    const Workplace place;
    CHECK(place.run({"list", "-"}, {.input = " $SCF $END\n"}).out ==
          "line  group  kind        keywords  raw lines\n"
          "   1  SCF    structured         0          0\n");
}

TEST_CASE("A byte-order mark and every kind of line end are taken as the reader takes them") {
    const Workplace place;
    place.make("a.inp", "\xEF\xBB\xBF $SCF $END\r $GUESS $END\r\n $VEC $END");
    CHECK(place.run({"list", "a.inp"}).out ==
          "line  group  kind        keywords  raw lines\n"
          "   1  SCF    structured         0          0\n"
          "   2  GUESS  structured         0          0\n"
          "   3  VEC    raw                0          0\n");
}

TEST_CASE("Control characters of group names are escaped in the list") {
    const Workplace place;
    place.make("a.inp", " $A\033B $END\n");
    CHECK(place.run({"list", "a.inp"}).out ==
          "line  group   kind      keywords  raw lines\n"
          "   1  A\\x1BB  keywords         0          0\n");
}

TEST_CASE("What is no deck cannot be listed") {
    const Workplace place;
    place.make("empty.inp", "");
    const Outcome missing = place.run({"list", "missing.inp"});
    CHECK(missing.err == "gms-inp: error: cannot read missing.inp: No such file or directory\n");
    CHECK(missing.status == 2);
    const Outcome empty = place.run({"list", "empty.inp"});
    CHECK(empty.err ==
          "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n");
    CHECK(empty.status == 2);
}

TEST_CASE("A directory on standard input is trouble, not an empty deck") {
    const Workplace place;
    const Outcome outcome = place.run({"list", "-"}, {.input_path = "/"});
    CHECK(outcome.err == "gms-inp: error: cannot read <stdin>: Is a directory\n");
    CHECK(outcome.status == 2);
}
