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
    " $CONTRL SCFTYP=RHF\n"
    " NOSUCH=1\n"
    " junk\n"
    " $END\n"
    " $STRANGE A=1 $END\n";

}  // namespace

TEST_CASE("A deck without findings gives a summary and status 0") {
    const Workplace place;
    place.make("water.inp", water);
    const Outcome outcome = place.run({"check", "water.inp"});
    CHECK(outcome.out == "1 file: no findings\n");
    CHECK(outcome.err.empty());
    CHECK(outcome.status == 0);
}

TEST_CASE("Findings are printed with file, line and weight, in the order of lines") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    const Outcome outcome = place.run({"check", "faulty.inp"});
    CHECK(outcome.out ==
          "faulty.inp:2: warning: Keyword 'NOSUCH' is not currently described by the schema for "
          "section $CONTRL\n"
          "faulty.inp:3: warning: Section $CONTRL preserved non-keyword body text as raw text\n"
          "faulty.inp:3: error: Structured section $CONTRL still contains non-keyword raw text\n"
          "faulty.inp:5: info: Section $STRANGE is not currently described by the GAMESS schema\n"
          "1 file: 1 error, 2 warnings, 1 note\n");
    CHECK(outcome.err.empty());
    CHECK(outcome.status == 1);
}

TEST_CASE("An unknown keyword of a structured group is one finding though validation gives two") {
    const Workplace place;
    place.make("a.inp", " $SCF NOSUCH=1 $END\n");
    CHECK(place.run({"check", "a.inp"}).out ==
          "a.inp:1: warning: Keyword 'NOSUCH' is not currently described by the schema for "
          "section $SCF\n"
          "1 file: 1 warning\n");
}

TEST_CASE("A finding that the text gives rise to several times says in how many places") {
    const Workplace place;
    place.make("a.inp", " $SCF DIRSCF=.T.\n nosuch=1\n NOSUCH=2\n $END\n $SCF NOSUCH=3 $END\n");
    CHECK(place.run({"check", "a.inp"}).out ==
          "a.inp:2: warning: Keyword 'NOSUCH' is not currently described by the schema for "
          "section $SCF (3 places)\n"
          "1 file: 1 warning\n");
}

TEST_CASE("Groups without their end are reported with the line of their header") {
    const Workplace place;
    place.make("a.inp", "\n $SCF DIRSCF=.T.\n $BASIS GBASIS=N31 $END\n $DATA\nTitle\nC1\n");
    CHECK(place.run({"check", "a.inp"}).out ==
          "a.inp:2: warning: Section $SCF reached the next section before $END; treating it as "
          "implicitly terminated\n"
          "a.inp:4: warning: $DATA reached end-of-file without $END\n"
          "1 file: 2 warnings\n");
}

TEST_CASE("Free text on a header line is reported with that line") {
    const Workplace place;
    place.make("a.inp", "comment\n $BASIS some words GBASIS=N31 $END\n");
    CHECK(place.run({"check", "a.inp"}).out ==
          "a.inp:2: warning: Section $BASIS preserved non-keyword text from its header as raw "
          "text\n"
          "a.inp:2: error: Structured section $BASIS still contains non-keyword raw text\n"
          "1 file: 1 error, 1 warning\n");
}

TEST_CASE("Info alone gives status 0") {
    const Workplace place;
    place.make("a.inp", " $STRANGE A=1 $END\n");
    const Outcome outcome = place.run({"check", "a.inp"});
    CHECK(outcome.out ==
          "a.inp:1: info: Section $STRANGE is not currently described by the GAMESS schema\n"
          "1 file: 1 note\n");
    CHECK(outcome.status == 0);
}

TEST_CASE("Each kind of finding can be switched off") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    const auto summary = [&](const std::vector<std::string>& options) {
        std::vector<std::string> arguments{"check", "--quiet", "faulty.inp"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return place.run(arguments).out;
    };
    CHECK(summary({}) == "1 file: 1 error, 2 warnings, 1 note\n");
    CHECK(summary({"--no-unknown-sections"}) == "1 file: 1 error, 2 warnings\n");
    CHECK(summary({"--no-unknown-keywords"}) == "1 file: 1 error, 1 warning, 1 note\n");
    CHECK(summary({"--no-raw-text"}) == "1 file: 1 warning, 1 note\n");
    CHECK(summary({"--no-unknown-sections", "--no-unknown-keywords", "--no-raw-text"}) ==
          "1 file: no findings\n");
}

TEST_CASE("Without any finding left the status is 0, whatever was switched off") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    CHECK(place.run({"check", "--no-unknown-keywords", "--no-raw-text", "faulty.inp"}).status == 0);
}

TEST_CASE("Quiet prints the summary only and keeps the status") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    const Outcome outcome = place.run({"check", "-q", "faulty.inp"});
    CHECK(outcome.out == "1 file: 1 error, 2 warnings, 1 note\n");
    CHECK(outcome.status == 1);
}

TEST_CASE("Files are checked in the order given and counted together") {
    const Workplace place;
    place.make("b.inp", " $STRANGE A=1 $END\n");
    place.make("a.inp", " $ODD A=1 $END\n");
    place.make("water.inp", water);
    CHECK(place.run({"check", "b.inp", "water.inp", "a.inp"}).out ==
          "b.inp:1: info: Section $STRANGE is not currently described by the GAMESS schema\n"
          "a.inp:1: info: Section $ODD is not currently described by the GAMESS schema\n"
          "3 files: 2 notes\n");
}

TEST_CASE("A file that cannot be read does not keep the others from being checked") {
    const Workplace place;
    place.make("faulty.inp", faulty);
    const Outcome outcome = place.run({"check", "-q", "missing.inp", "faulty.inp"});
    CHECK(outcome.out == "2 files: 1 error, 2 warnings, 1 note, 1 unreadable\n");
    CHECK(outcome.err == "gms-inp: error: cannot read missing.inp: No such file or directory\n");
    CHECK(outcome.status == 2);
}

TEST_CASE("A directory, an empty file and a text without groups are no decks") {
    const Workplace place;
    place.make("empty.inp", "");
    place.make("letter.txt", "Dear reader,\n\n$\n");
    const Outcome outcome = place.run({"check", ".", "empty.inp", "letter.txt"});
    CHECK(outcome.out == "3 files: no findings, 3 unreadable\n");
    CHECK(outcome.err ==
          "gms-inp: error: cannot read .: Is a directory\n"
          "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"
          "gms-inp: error: letter.txt: The input does not contain any GAMESS sections\n");
    CHECK(outcome.status == 2);
}

TEST_CASE("A dash checks standard input") {
    const Workplace place;
    const Outcome outcome = place.run({"check", "-"}, {.input = " $STRANGE A=1 $END\n"});
    CHECK(outcome.out ==
          "<stdin>:1: info: Section $STRANGE is not currently described by the GAMESS schema\n"
          "1 file: 1 note\n");
}

TEST_CASE("JSON holds every file, every finding and the summary") {
    const Workplace place;
    place.make("faulty.inp", " $SCF NOSUCH=1 $END\n $STRANGE A=1 $END\n");
    const Outcome outcome = place.run({"check", "--json", "faulty.inp"});
    CHECK(outcome.out == R"({
  "files": [
    {
      "file": "faulty.inp",
      "error": null,
      "findings": [
        {
          "severity": "warning",
          "section": "scf",
          "key": "NOSUCH",
          "message": "Keyword 'NOSUCH' is not currently described by the schema for section $SCF",
          "line": 1,
          "count": 1
        },
        {
          "severity": "info",
          "section": "strange",
          "key": "",
          "message": "Section $STRANGE is not currently described by the GAMESS schema",
          "line": 2,
          "count": 1
        }
      ]
    }
  ],
  "summary": {
    "files": 1,
    "errors": 0,
    "warnings": 1,
    "notes": 1,
    "unreadable": 0
  }
}
)");
    CHECK(outcome.status == 1);
}

TEST_CASE("JSON tells of files that cannot be read, and standard error does so, too") {
    const Workplace place;
    const Outcome outcome = place.run({"check", "--json", "missing.inp"});
    const auto json = nlohmann::json::parse(outcome.out);
    CHECK(json["files"][0]["error"] == "cannot read missing.inp: No such file or directory");
    CHECK(json["summary"]["unreadable"] == 1);
    CHECK(outcome.err == "gms-inp: error: cannot read missing.inp: No such file or directory\n");
    CHECK(outcome.status == 2);
}

TEST_CASE("Quiet and JSON exclude each other") {
    const Workplace place;
    place.make("water.inp", water);
    const Outcome outcome = place.run({"check", "--quiet", "--json", "water.inp"});
    CHECK(outcome.out.empty());
    CHECK(outcome.status == 2);
}

TEST_CASE("Control characters of file names and keywords are escaped") {
    const Workplace place;
    place.make("a\033[31m.inp", " $CONTRL\033 A=1 $END\n $SCF X(\a)=1 $END\n");
    const Outcome outcome = place.run({"check", "a\033[31m.inp"});
    CHECK(outcome.out ==
          "a\\x1B[31m.inp:1: info: Section $CONTRL\\x1B is not currently described by the GAMESS "
          "schema\n"
          "a\\x1B[31m.inp:2: warning: Keyword 'X(\\x07)' is not currently described by the schema "
          "for section $SCF\n"
          "1 file: 1 warning, 1 note\n");
}

TEST_CASE("A file may be called like a subcommand or like an option") {
    const Workplace place;
    place.make("check", water);
    place.make("--json", water);
    CHECK(place.run({"check", "--", "check", "--json"}).out == "2 files: no findings\n");
}
