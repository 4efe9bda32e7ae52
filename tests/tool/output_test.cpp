#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

const std::vector<std::vector<std::string>>& printing_commands() {
    static const std::vector<std::vector<std::string>> commands{
        {"--help"},
        {"check", "--help"},
        {"--version"},
        {"check", "water.inp"},
        {"check", "--json", "water.inp"},
        {"list", "water.inp"},
        {"get", "water.inp", "CONTRL"},
        {"get", "water.inp", "CONTRL.SCFTYP"},
        {"check", "--format", "sarif", "water.inp"},
        {"explain"},
        {"diff", "--json", "water.inp", "water.inp"},
        {"diff", "water.inp", "other.inp"},
        {"extract", "water.inp", "DATA"},
        {"splice", "water.inp", "BASIS", "--from", "other.inp"},
        {"format", "--check", "long.inp"},
        {"format", "--canonical", "--force", "water.inp"},
        {"set", "water.inp", "SCF.DIRSCF=.T."},
        {"unset", "water.inp", "STATPT"},
        {"format", "water.inp"},
        {"show", "water.inp"},
        {"schema"},
    };
    return commands;
}

void make_decks(const Workplace& place) {
    place.make("water.inp", water);
    place.make("other.inp", " $CONTRL SCFTYP=UHF $END\n $BASIS GBASIS=STO $END\n");
    place.make("long.inp", " $CONTRL SCFTYP=RHF" + std::string(80, ' ') + "MAXIT=30 $END\n");
}

}  // namespace

TEST_CASE("A full disk behind standard output is trouble for every command") {
    const Workplace place;
    make_decks(place);
    for (const auto& command : printing_commands()) {
        CAPTURE(command[0]);
        CHECK(
            place.run(command, {.output_path = "/dev/full"}) ==
            Outcome{2, "",
                    "gms-inp: error: cannot write to standard output: No space left on device\n"});
    }
}

TEST_CASE("A closed standard output is trouble for every command") {
    const Workplace place;
    make_decks(place);
    for (const auto& command : printing_commands()) {
        CAPTURE(command[0]);
        CHECK(place.run(command, {.output_closed = true}) ==
              Outcome{2, "",
                      "gms-inp: error: cannot write to standard output: Bad file descriptor\n"});
    }
}

TEST_CASE("Nothing is coloured when the output is no terminal") {
    const Workplace place;
    place.make("a.inp", " $SCF A=1 $END\n");
    const Outcome outcome = place.run({"check", "a.inp", "missing.inp"});
    CHECK(outcome.out.find('\033') == std::string::npos);
    CHECK(outcome.err.find('\033') == std::string::npos);
}

TEST_CASE("The weight of a message is coloured on a terminal") {
    const Workplace place;
    CHECK(place
              .run_on_terminal({"check", "--disable", "missing-molecule", "-"},
                               {.input = " $ODD A=1 $END\n $SCF NO\tSUCH=1 $END\n"})
              .out ==
          "<stdin>:1:2: \033[36minfo\033[0m: Section $ODD is not currently described by the GAMESS "
          "schema [unknown-group]\r\n"
          "    1 |  $ODD A=1 $END\r\n"
          "      |  ^~~~\r\n"
          "<stdin>:2:7: \033[31merror\033[0m: Structured section $SCF still contains non-keyword "
          "raw text [stray-text]\r\n"
          "    2 |  $SCF NO\tSUCH=1 $END\r\n"
          "      |       ^~\r\n"
          "<stdin>:2:10: \033[33mwarning\033[0m: Keyword 'SUCH' is not currently described by the "
          "schema for section $SCF [unknown-keyword]\r\n"
          "    2 |  $SCF NO\tSUCH=1 $END\r\n"
          "      |         \t^~~~\r\n"
          "1 file: 1 error, 1 warning, 1 note\r\n");
    CHECK(place.run_on_terminal({"list", "missing.inp"}).out ==
          "gms-inp: \033[31merror\033[0m: cannot read missing.inp: No such file or directory\r\n");
}

TEST_CASE("What was fixed is coloured and has no excerpt") {
    const Workplace place;
    place.make("a.inp", "$SCF DIRSCF=.T. $END\n");
    CHECK(
        place.run_on_terminal({"check", "--fix", "--disable", "missing-molecule", "a.inp"}).out ==
        "a.inp:1:1: \033[32mfixed\033[0m: GAMESS does not find $SCF: its $ must stand in column 2, "
        "behind one space [header-column]\r\n"
        "1 file: no findings, 1 fixed\r\n");
}

TEST_CASE("Messages and excerpts of a deck bring no control character to a terminal") {
    const Workplace place;
    const std::string deck = " $SCF \033[31m=1 X\a=\b $END\n$BASIS \x7F $END\n";
    for (const std::string command : {"check", "list", "show"}) {
        CAPTURE(command);
        const std::string out =
            place.run_on_terminal({command, "-"}, {.input = deck, .environment = {"NO_COLOR=1"}})
                .out;
        CHECK(out.find("SCF") != std::string::npos);
        CHECK(out.find_first_of("\033\a\b\x7F") == std::string::npos);
    }
}

TEST_CASE("NO_COLOR turns colour off, an empty NO_COLOR does not") {
    const Workplace place;
    const auto output_with = [&](const std::string& variable) {
        return place.run_on_terminal({"list", "missing.inp"}, {.environment = {variable}}).out;
    };
    CHECK(output_with("NO_COLOR=1") ==
          "gms-inp: error: cannot read missing.inp: No such file or directory\r\n");
    CHECK(output_with("NO_COLOR=").find("\033[31merror") != std::string::npos);
}

TEST_CASE("Deck text on a terminal has its control characters escaped, but for newline and tab") {
    const Workplace place;
    CHECK(place.run_on_terminal({"format", "-"}, {.input = " $PCM A=\033[31m\tb\x7F $END\n"}).out ==
          " $PCM A=\\x1B[31m\tb\\x7F $END\r\n");
}

TEST_CASE("Checking many files counts on a terminal and clears the count") {
    const Workplace place;
    place.make("water.inp", water);
    const std::vector<std::string> few{"check", "-q", "water.inp"};
    CHECK(place.run_on_terminal(few).out == "1 file: no findings\r\n");
    std::vector<std::string> many{"check", "-q"};
    many.resize(many.size() + 20, "water.inp");
    const std::string out = place.run_on_terminal(many).out;
    CHECK(out.starts_with("\r[1/20] water.inp\r\033[K\r[2/20] water.inp\r\033[K"));
    CHECK(out.ends_with("\r[20/20] water.inp\r\033[K20 files: no findings\r\n"));
}

TEST_CASE("The count is out of the way when a finding is printed") {
    const Workplace place;
    place.make("odd.inp", " $ODD A=1 $END\n");
    std::vector<std::string> many{"check"};
    many.resize(many.size() + 20, "odd.inp");
    CHECK(place.run_on_terminal(many).out.starts_with("\r[1/20] odd.inp\r\033[Kodd.inp:1:2: "));
}

TEST_CASE("Checking many files does not count when standard error is no terminal") {
    const Workplace place;
    place.make("water.inp", water);
    std::vector<std::string> many{"check"};
    many.resize(many.size() + 20, "water.inp");
    CHECK(place.run(many) == Outcome{0, "20 files: no findings\n", ""});
}
