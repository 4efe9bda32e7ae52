#include "nurl/input/gamess/source/check.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

/// A deck with one finding of each weight.
constexpr std::string_view faulty =
    " $CONTRL RUNTPY=ENERGY $END\n"
    "$SCF DIRSCF=.T. $END\n"
    " $STRANGE A=1 $END\n";

constexpr std::string_view faulty_lines =
    "faulty.inp:1:10: warning: Keyword 'RUNTPY' is not currently described by the schema for "
    "section $CONTRL; did you mean RUNTYP? [unknown-keyword]\n"
    "faulty.inp:2:1: error: GAMESS does not find $SCF: its $ must stand in column 2, behind one "
    "space [header-column]\n"
    "faulty.inp:3:2: info: Section $STRANGE is not currently described by the GAMESS schema "
    "[unknown-group]\n";

/// What is checked here is the program, not the rule that asks for a molecule.
const std::vector<std::string> check{"check", "--disable", "missing-molecule"};

std::vector<std::string> with(std::vector<std::string> words,
                              const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

}  // namespace

TEST_CASE("A deck without findings gives a summary and status 0") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"check", "water.inp"}) == Outcome{0, "1 file: no findings\n", ""});
}

TEST_CASE("Findings are printed with file, line, column, weight, hint and rule, by place") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    CHECK(place.run(with(check, {"faulty.inp"})) ==
          Outcome{1, std::string{faulty_lines} + "1 file: 1 error, 1 warning, 1 note\n", ""});
}

TEST_CASE("Info alone gives status 0") {
    const Workplace place;
    place.make("a.inp", " $STRANGE A=1 $END\n");
    CHECK(place.run(with(check, {"a.inp"})) ==
          Outcome{0,
                  "a.inp:1:2: info: Section $STRANGE is not currently described by the GAMESS "
                  "schema [unknown-group]\n"
                  "1 file: 1 note\n",
                  ""});
}

TEST_CASE("Rules are switched off by name, in any case, one by one or in a list") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    const auto summary = [&](const std::vector<std::string>& options) {
        return place.run(with(with(check, {"-q", "faulty.inp"}), options)).out;
    };
    CHECK(summary({}) == "1 file: 1 error, 1 warning, 1 note\n");
    CHECK(summary({"--disable", "unknown-group"}) == "1 file: 1 error, 1 warning\n");
    CHECK(summary({"--disable", "UNKNOWN-group,header-column"}) == "1 file: 1 warning\n");
    CHECK(summary({"--disable", "unknown-group", "--disable", "unknown-keyword,header-column"}) ==
          "1 file: no findings\n");
    CHECK(place.run({"check", "--disable=header-column", "-q", "faulty.inp"}).out ==
          "1 file: 1 warning, 2 notes\n");
}

TEST_CASE("The older options stand for rules that exist") {
    const Workplace place;
    place.make("a.inp", " $SCF stray NOSUCH=1 $END\n $STRANGE A=1 $END\n");
    const auto summary = [&](const std::vector<std::string>& options) {
        return place.run(with(with(check, {"-q", "a.inp"}), options)).out;
    };
    CHECK(summary({}) == "1 file: 1 error, 1 warning, 1 note\n");
    CHECK(summary({"--no-unknown-sections"}) == "1 file: 1 error, 1 warning\n");
    CHECK(summary({"--no-unknown-keywords"}) == "1 file: 1 error, 1 note\n");
    CHECK(summary({"--no-raw-text"}) == "1 file: 1 warning, 1 note\n");
    for (const char* const rule : {"unknown-group", "unknown-keyword", "stray-text"})
        CHECK(nurl::input::gamess::source::find_rule(rule) != nullptr);
}

TEST_CASE("A rule that does not exist cannot be switched off") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    CHECK(place.run({"check", "--disable", "unknown-gruop", "faulty.inp"}) ==
          Outcome{2, "",
                  "gms-inp: error: there is no rule 'unknown-gruop'; did you mean "
                  "'unknown-group'?\n"});
    CHECK(place.run({"check", "--disable", "a\033", "faulty.inp"}).err ==
          "gms-inp: error: there is no rule 'a\\x1B'; 'gms-inp explain' lists them\n");
}

TEST_CASE("Quiet prints the summary only and keeps the status") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    CHECK(place.run(with(check, {"-q", "faulty.inp"})) ==
          Outcome{1, "1 file: 1 error, 1 warning, 1 note\n", ""});
}

TEST_CASE("Files are checked in the order given and counted together") {
    const Workplace place;
    place.make("b.inp", " $STRANGE A=1 $END\n");
    place.make("a.inp", " $ODD A=1 $END\n");
    place.make("c.inp", " $CONTRL SCFTYP=RHF $END\n");
    CHECK(place.run(with(check, {"b.inp", "c.inp", "a.inp"})).out ==
          "b.inp:1:2: info: Section $STRANGE is not currently described by the GAMESS schema "
          "[unknown-group]\n"
          "a.inp:1:2: info: Section $ODD is not currently described by the GAMESS schema "
          "[unknown-group]\n"
          "3 files: 2 notes\n");
}

TEST_CASE("A file that cannot be read does not keep the others from being checked") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    CHECK(place.run(with(check, {"-q", "missing.inp", "faulty.inp"})) ==
          Outcome{2, "2 files: 1 error, 1 warning, 1 note, 1 unreadable\n",
                  "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
}

TEST_CASE("A directory, an empty file and a text without groups are no decks") {
    const Workplace place;
    place.make("empty.inp", "");
    place.make("letter.txt", "Dear reader,\n\n$\n");
    CHECK(place.run({"check", ".", "empty.inp", "letter.txt"}) ==
          Outcome{2, "3 files: 3 unreadable\n",
                  "gms-inp: error: cannot read .: Is a directory\n"
                  "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"
                  "gms-inp: error: letter.txt: The input does not contain any GAMESS sections\n"});
}

TEST_CASE(
    "A script with a word behind a dollar sign is no deck, a deck in the wrong column is one") {
    const Workplace place;
    place.make("run.sh", "#!/bin/sh\n$GMSPATH/rungms water.inp\n");
    place.make("low.inp", "$SCF DIRSCF=.T. $END\n");
    CHECK(place.run({"check", "run.sh"}) ==
          Outcome{2, "1 file: 1 unreadable\n",
                  "gms-inp: error: run.sh: The input does not contain any GAMESS sections\n"});
    CHECK(place.run({"set", "-i", "run.sh", "SCF.DIRSCF=.F."}).status == 2);
    CHECK(place.content_of("run.sh") == "#!/bin/sh\n$GMSPATH/rungms water.inp\n");
    CHECK(place.run({"check", "-q", "low.inp"}) == Outcome{1, "1 file: 1 error\n", ""});
}

TEST_CASE("Without a schema that lists keywords a warning says why none is known") {
    const Workplace place;
    place.make("a.inp", " $SCF DIRSCF=.T. $END\n");
    place.make("empty.yaml", "sections:\n");
    const Outcome outcome = place.run({"--schema", "empty.yaml", "check", "-q", "a.inp"});
    CHECK(outcome.status == 1);
    CHECK(outcome.err ==
          "gms-inp: warning: the schema lists no keywords, so none is known; --schema names its "
          "file\n");
    CHECK(place.run({"--schema", "empty.yaml", "schema", "scf"}).err == outcome.err);
}

TEST_CASE("A dash checks standard input") {
    const Workplace place;
    CHECK(place.run(with(check, {"-"}), {.input = " $STRANGE A=1 $END\n"}).out ==
          "<stdin>:1:2: info: Section $STRANGE is not currently described by the GAMESS schema "
          "[unknown-group]\n"
          "1 file: 1 note\n");
}

TEST_CASE("JSON holds every file, every finding and the summary") {
    const Workplace place;
    place.make("faulty.inp", "note\r\n $CONTRL RUNTPY=ENERGY $END\r\n$SCF DIRSCF=.T. $END\r\n");
    const Outcome outcome = place.run(with(check, {"--json", "faulty.inp"}));
    CHECK(outcome.out == R"({
  "files": [
    {
      "file": "faulty.inp",
      "error": null,
      "findings": [
        {
          "rule": "unknown-keyword",
          "severity": "warning",
          "line": 2,
          "column": 10,
          "end_line": 2,
          "end_column": 16,
          "offset": 15,
          "length": 6,
          "message": "Keyword 'RUNTPY' is not currently described by the schema for section $CONTRL",
          "hint": "did you mean RUNTYP?",
          "fixable": false
        },
        {
          "rule": "header-column",
          "severity": "error",
          "line": 3,
          "column": 1,
          "end_line": 3,
          "end_column": 5,
          "offset": 35,
          "length": 4,
          "message": "GAMESS does not find $SCF: its $ must stand in column 2, behind one space",
          "hint": "",
          "fixable": true
        }
      ],
      "fixed": []
    }
  ],
  "summary": {
    "files": 1,
    "errors": 1,
    "warnings": 1,
    "notes": 0,
    "fixed": 0,
    "unreadable": 0,
    "unwritten": 0
  }
}
)");
    CHECK(outcome.status == 1);
    CHECK(place.run(with(check, {"--format", "JSON", "faulty.inp"})) == outcome);
}

TEST_CASE("JSON tells of files that cannot be read, and standard error does so, too") {
    const Workplace place;
    const Outcome outcome = place.run({"check", "--json", "missing.inp"});
    const auto json = nlohmann::json::parse(outcome.out);
    CHECK(json["files"][0]["error"] == "cannot read missing.inp: No such file or directory");
    CHECK(json["files"][0]["findings"] == nlohmann::json::array());
    CHECK(json["summary"]["unreadable"] == 1);
    CHECK(outcome.err == "gms-inp: error: cannot read missing.inp: No such file or directory\n");
    CHECK(outcome.status == 2);
}

TEST_CASE("Quiet goes with text only, and an unknown format is refused") {
    const Workplace place;
    place.make("water.inp", water);
    const Outcome refused{2, "", "gms-inp: error: --quiet goes with the format text only\n"};
    CHECK(place.run({"check", "--quiet", "--json", "water.inp"}) == refused);
    CHECK(place.run({"check", "--quiet", "--format", "sarif", "water.inp"}) == refused);
    CHECK(place.run({"check", "--format", "xml", "water.inp"}) ==
          Outcome{2, "", "gms-inp: error: expected text, json or sarif, not 'xml'\n"});
}

TEST_CASE("Control characters of file names and keywords are escaped") {
    const Workplace place;
    place.make("a\033[31m.inp", " $CONTRL\033 A=1 $END\n $SCF X(\a)=1 $END\n");
    const Outcome outcome = place.run(with(check, {"a\033[31m.inp"}));
    CHECK(outcome.out.starts_with(
        "a\\x1B[31m.inp:1:2: info: Section $CONTRL\\x1B is not currently described by the GAMESS "
        "schema"));
    CHECK(outcome.out.find('\033') == std::string::npos);
    CHECK(outcome.out.find('\a') == std::string::npos);
}

TEST_CASE("A file may be called like a subcommand or like an option") {
    const Workplace place;
    place.make("check", " $CONTRL SCFTYP=RHF $END\n");
    place.make("--json", " $CONTRL SCFTYP=RHF $END\n");
    CHECK(place.run(with(check, {"--", "check", "--json"})).out == "2 files: no findings\n");
}
