#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "difference_text.hpp"
#include "tool/workplace.hpp"

using gms_inp::DeckNames;
using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace source = nurl::input::gamess::source;

namespace {

const DeckNames names{.a = "a.inp", .b = "b\033.inp"};

source::Difference keyword(const std::string& before, const std::string& after) {
    return {.kind = source::DifferenceKind::Keyword,
            .group = "CONTRL",
            .key = "MAXIT",
            .before = before,
            .after = after,
            .before_position = source::Position{3, 9},
            .after_position = source::Position{4, 1}};
}

}  // namespace

TEST_CASE("A keyword that differs is one line with both values and their lines") {
    CHECK(text_of(keyword("30", "50"), names) == "CONTRL.MAXIT: 30 -> 50  (line 3 -> line 4)\n");
    source::Difference same_line = keyword("30", "50");
    same_line.after_position = source::Position{3, 1};
    CHECK(text_of(same_line, names) == "CONTRL.MAXIT: 30 -> 50  (line 3)\n");
    CHECK(text_of(keyword("", "50"), names) == "CONTRL.MAXIT: (empty) -> 50  (line 3 -> line 4)\n");
}

TEST_CASE("A keyword that one deck lacks names the other") {
    source::Difference only_before = keyword("30", "");
    only_before.after_position.reset();
    CHECK(text_of(only_before, names) == "CONTRL.MAXIT: 30  (only in a.inp, line 3)\n");
    source::Difference only_after = keyword("", "50");
    only_after.before_position.reset();
    CHECK(text_of(only_after, names) == "CONTRL.MAXIT: 50  (only in b\\x1B.inp, line 4)\n");
}

TEST_CASE("Long values stand below one another") {
    const std::string before(40, '1');
    const std::string after(40, '2');
    CHECK(text_of(keyword(before, after), names) ==
          "CONTRL.MAXIT  (line 3 -> line 4)\n- " + before + "\n+ " + after + "\n");
}

TEST_CASE("Control characters of values and lines are escaped") {
    CHECK(text_of(keyword("\033[31m", "a\tb"), names) ==
          "CONTRL.MAXIT: \\x1B[31m -> a\\x09b  (line 3 -> line 4)\n");
}

TEST_CASE("A group that one deck lacks is named with its place") {
    source::Difference group;
    group.group = "SCF";
    group.before_position = source::Position{2, 2};
    CHECK(text_of(group, names) == "SCF  (only in a.inp, line 2)\n");
}

TEST_CASE("Lines stand below the part they belong to") {
    source::Difference line{.kind = source::DifferenceKind::Line,
                            .group = "DATA",
                            .key = "atom",
                            .before = "O 8.0",
                            .after = "S 16.0",
                            .before_position = source::Position{7, 1},
                            .after_position = source::Position{9, 1}};
    CHECK(text_of(line, names) == "DATA atom  (line 7 -> line 9)\n- O 8.0\n+ S 16.0\n");
    line.group = "VEC";
    line.occurrence = 2;
    line.key.clear();
    line.before.clear();
    line.after = " 1  1 1.0";
    line.before_position.reset();
    CHECK(text_of(line, names) == "VEC#2  (only in b\\x1B.inp, line 9)\n+  1  1 1.0\n");
}

TEST_CASE("Two decks that ask for the same have no difference and status 0") {
    const Workplace place;
    place.make("a.inp", " $CONTRL SCFTYP=RHF MAXIT=30 $END\n $SCF DIRSCF=.T. $END\n");
    place.make("b.inp", "note\n $scf dirscf=.true. $end\n $contrl maxit=30,\n scftyp=rhf\n $end\n");
    CHECK(place.run({"diff", "a.inp", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.run({"diff", "a.inp", "a.inp"}) == Outcome{0, "", ""});
}

TEST_CASE("Two decks that ask for different things have status 1") {
    const Workplace place;
    place.make("a.inp", " $CONTRL SCFTYP=RHF\n MAXIT=30 $END\n");
    CHECK(place.run({"diff", "a.inp", "-"}, {.input = " $CONTRL SCFTYP=RHF MAXIT=50 $END\n"}) ==
          Outcome{1, "CONTRL.MAXIT: 30 -> 50  (line 2 -> line 1)\n", ""});
    CHECK(place.run({"diff", "-", "a.inp"}, {.input = " $CONTRL SCFTYP=RHF $END\n"}) ==
          Outcome{1, "CONTRL.MAXIT: 30  (only in a.inp, line 2)\n", ""});
}

TEST_CASE("Differences as JSON, null where a deck lacks something") {
    const Workplace place;
    place.make("a.inp", " $CONTRL SCFTYP=RHF MAXIT=30 $END\n");
    place.make("b.inp", " $CONTRL SCFTYP=UHF $END\n");
    const Outcome outcome = place.run({"diff", "--json", "a.inp", "b.inp"});
    CHECK(outcome.out == R"({
  "a": "a.inp",
  "b": "b.inp",
  "differences": [
    {
      "kind": "keyword",
      "group": "CONTRL",
      "occurrence": 1,
      "key": "SCFTYP",
      "before": "RHF",
      "after": "UHF",
      "before_line": 1,
      "before_column": 10,
      "after_line": 1,
      "after_column": 10
    },
    {
      "kind": "keyword",
      "group": "CONTRL",
      "occurrence": 1,
      "key": "MAXIT",
      "before": "30",
      "after": null,
      "before_line": 1,
      "before_column": 21,
      "after_line": null,
      "after_column": null
    }
  ]
}
)");
    CHECK(outcome.status == 1);
    CHECK(
        place.run({"diff", "--json", "a.inp", "a.inp"}) ==
        Outcome{0, "{\n  \"a\": \"a.inp\",\n  \"b\": \"a.inp\",\n  \"differences\": []\n}\n", ""});
}

TEST_CASE("What cannot be compared is trouble") {
    const Workplace place;
    place.make("water.inp", water);
    place.make("empty.inp", "");
    CHECK(place.run({"diff", "water.inp", "missing.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.run({"diff", "empty.inp", "water.inp"}) ==
          Outcome{2, "",
                  "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"});
    CHECK(place.run({"diff", "-", "-"}) ==
          Outcome{2, "", "gms-inp: error: the decks cannot both be standard input\n"});
    CHECK(place.run({"diff", "water.inp"}).status == 2);
}
