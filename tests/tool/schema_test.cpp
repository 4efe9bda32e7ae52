#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

TEST_CASE("Without an argument all groups are listed, sorted") {
    const Workplace place;
    CHECK(place.run({"schema"}) == Outcome{0,
                                           "group   mode        keywords  same as\n"
                                           "ALPDR   raw                0\n"
                                           "BASIS   structured         2\n"
                                           "CISVEC  raw                0\n"
                                           "CONTRL  structured         5\n"
                                           "DATA    raw                0\n"
                                           "DATAL   raw                0\n"
                                           "DATAS   raw                0\n"
                                           "DFTBAO  raw                0\n"
                                           "DFTBSK  raw                0\n"
                                           "DIPDR   raw                0\n"
                                           "DM      raw                0\n"
                                           "EQGEOM  raw                0\n"
                                           "GLOWT   raw                0\n"
                                           "GRAD    raw                0\n"
                                           "GUESS   structured         0\n"
                                           "HESS    raw                0\n"
                                           "HLOWT   raw                0\n"
                                           "OPTIM   keywords           2  STATPT\n"
                                           "SCF     structured         1\n"
                                           "STATPT  keywords           2  OPTIM\n"
                                           "SYSTEM  structured         0\n"
                                           "VEC     raw                0\n"
                                           "VIB     raw                0\n"
                                           "VIB2    raw                0\n"
                                           "VIBSCF  raw                0\n",
                                           ""});
}

TEST_CASE("A group is shown with its keywords, sorted") {
    const Workplace place;
    CHECK(place.run({"schema", "$contrl"}).out ==
          "group   mode        keywords  same as\n"
          "CONTRL  structured         5\n"
          "\n"
          "keyword  kind   type   indexed  repeated\n"
          "ICHARG   value  int    no       no\n"
          "LOCAL    value  token  no       no\n"
          "MULT     value  int    no       no\n"
          "RUNTYP   value  token  no       no\n"
          "SCFTYP   value  token  no       no\n");
}

TEST_CASE("A group without keywords is shown without a list of them") {
    const Workplace place;
    CHECK(place.run({"schema", "VEC"}).out ==
          "group  mode  keywords  same as\n"
          "VEC    raw          0\n");
}

TEST_CASE("An alias is shown with the keywords of the group it stands for") {
    const Workplace place;
    CHECK(place.run({"schema", "optim"}).out ==
          "group  mode      keywords  same as\n"
          "OPTIM  keywords         2  STATPT\n"
          "\n"
          "keyword  kind   type  indexed  repeated\n"
          "IFREEZ   value  int   yes      yes\n"
          "OPTTOL   value  real  no       no\n");
}

TEST_CASE("A keyword is shown, with or without an index") {
    const Workplace place;
    CHECK(place.run({"schema", "SCF.dirscf"}).out ==
          "keyword  kind  type     indexed  repeated\n"
          "DIRSCF   flag  logical  no       no\n");
    CHECK(place.run({"schema", "STATPT.IFREEZ(4)"}).out ==
          "keyword    kind   type  indexed  repeated\n"
          "IFREEZ(4)  value  int   yes      yes\n");
}

TEST_CASE("A group or keyword that the schema does not know gives a message and status 1") {
    const Workplace place;
    CHECK(place.run({"schema", "nosuch"}) ==
          Outcome{1, "", "gms-inp: error: $NOSUCH is not in the schema\n"});
    CHECK(place.run({"schema", "scf.nosuch"}) ==
          Outcome{1, "", "gms-inp: error: $SCF.NOSUCH is not in the schema\n"});
    CHECK(place.run({"schema", "nosuch.dirscf"}) ==
          Outcome{1, "", "gms-inp: error: $NOSUCH.DIRSCF is not in the schema\n"});
}

TEST_CASE("A group as JSON") {
    const Workplace place;
    CHECK(place.run({"schema", "--json", "optim"}).out == R"({
  "name": "OPTIM",
  "mode": "keywords",
  "same_as": [
    "STATPT"
  ],
  "requires_end": true,
  "allow_unknown_entries": true,
  "allow_raw_lines": true,
  "keywords": [
    {
      "name": "IFREEZ",
      "kind": "value",
      "value_type": "int",
      "indexed": true,
      "repeated": true
    },
    {
      "name": "OPTTOL",
      "kind": "value",
      "value_type": "real",
      "indexed": false,
      "repeated": false
    }
  ]
}
)");
}

TEST_CASE("All groups as JSON, and a keyword as JSON") {
    const Workplace place;
    const auto groups = nlohmann::json::parse(place.run({"schema", "--json"}).out)["groups"];
    CHECK(groups.size() == 25);
    CHECK(groups[24]["name"] == "VIBSCF");
    CHECK(groups[1]["keywords"][0]["name"] == "GBASIS");
    CHECK(nlohmann::json::parse(place.run({"schema", "--json", "scf.dirscf"}).out).dump() ==
          R"({"indexed":false,"kind":"flag","name":"DIRSCF","repeated":false,)"
          R"("value_type":"logical"})");
}

TEST_CASE(
    "The schema file can be given on the command line, in front of the subcommand or behind") {
    const Workplace place;
    place.make("my.yaml", "sections:\n  mine:\n    entries:\n      A:\n        kind: wrong\n");
    const std::string expected =
        "keyword  kind         type   indexed  repeated\n"
        "A        unspecified  token  no       no\n";
    CHECK(place.run({"--schema", "my.yaml", "schema", "MINE.A"}).out == expected);
    CHECK(place.run({"schema", "MINE.A", "--schema", "my.yaml"}).out == expected);
    CHECK(place.run({"schema", "MINE.A"}).status == 1);
}

TEST_CASE("The schema file given is used for checking, too") {
    const Workplace place;
    place.make("my.yaml", "sections:\n  mine:\n    entries:\n      A:\n");
    CHECK(place
              .run({"check", "-", "--schema=my.yaml", "--disable", "missing-molecule"},
                   {.input = " $MINE A=1 B=2 $END\n"})
              .out ==
          "<stdin>:1:12: warning: Keyword 'B' is not currently described by the schema for section "
          "$MINE [unknown-keyword]\n"
          "1 file: 1 warning\n");
}

TEST_CASE("A schema file that is missing or no regular file is trouble") {
    const Workplace place;
    CHECK(place.run({"--schema", "missing.yaml", "schema"}) ==
          Outcome{2, "", "gms-inp: error: schema file is not a regular file: missing.yaml\n"});
    CHECK(place.run({"--schema", ".", "schema"}) ==
          Outcome{2, "", "gms-inp: error: schema file is not a regular file: .\n"});
    CHECK(place.run({"--schema", "", "schema"}) ==
          Outcome{2, "", "gms-inp: error: schema file is not a regular file: \n"});
}
