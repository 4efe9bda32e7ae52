#include <string>

#include <doctest/doctest.h>

#include "validation/findings.hpp"

using nurl::input::gamess::GamessInput;
using nurl::test::findings;
using nurl::test::Issues;
using nurl::test::raw_text;
using nurl::test::read_deck;
using nurl::test::unknown_group;
using nurl::test::unknown_keyword;

namespace {

/// A document in which every structured record has one keyword it has no member for.
GamessInput with_extras() {
    GamessInput input;
    input.has_control = true;
    input.control.extra = {{"ONE", "1"}};
    input.system.emplace().extra = {{"TWO", "1"}};
    input.basis.emplace().extra = {{"THREE", "1"}};
    input.scf.emplace().extra = {{"FOUR", "1"}};
    input.guess.emplace().extra = {{"FIVE", "1"}};
    return input;
}

}  // namespace

TEST_CASE("An empty document gives nothing") { CHECK(findings(GamessInput{}).empty()); }

TEST_CASE("The extra keywords of the structured records come in the order of the records") {
    CHECK(findings(with_extras()) ==
          Issues{unknown_keyword("contrl", "ONE"), unknown_keyword("system", "TWO"),
                 unknown_keyword("basis", "THREE"), unknown_keyword("scf", "FOUR"),
                 unknown_keyword("guess", "FIVE")});
}

TEST_CASE("The extra keywords of a record are checked against its own group and in order") {
    GamessInput input;
    input.has_control = true;
    input.control.extra = {{" b ", "1"}, {"ScfTyp", "RHF"}, {"a(1)", "1"}, {"B", "2"}};
    input.scf.emplace().extra = {{"SCFTYP", "1"}};
    CHECK(findings(input) ==
          Issues{unknown_keyword("contrl", "B"), unknown_keyword("contrl", "A(1)"),
                 unknown_keyword("contrl", "B"), unknown_keyword("scf", "SCFTYP")});
}

TEST_CASE("A record of control counts only when the group belongs to the deck") {
    GamessInput input;
    input.control.extra = {{"FOO", "1"}};
    CHECK(findings(input).empty());
    input.has_control = true;
    CHECK(findings(input) == Issues{unknown_keyword("contrl", "FOO")});
}

TEST_CASE("Keywords that have a member of their own are not checked in the record") {
    GamessInput input;
    input.has_control = true;
    input.control.has_runtyp = true;
    input.control.maxit = 50;
    input.scf.emplace().dirscf = true;
    CHECK(findings(input).empty());
}

TEST_CASE("Extra keywords are not checked when keywords are not reported") {
    CHECK(findings(with_extras(), {true, false, true}).empty());
}

TEST_CASE("Records come before groups read and those before groups added") {
    GamessInput input;
    input.guess.emplace().extra = {{"FIRST", "1"}};
    input.sections = {{"PCM", {{"SECOND", "1"}}, {}}, {"NOSUCH", {}, {}}, {"CONTRL", {}, {"junk"}}};
    input.extra_sections = {{"PCM", {{"LAST", "1"}}, {}}, {"ALSONOT", {}, {}}};
    CHECK(findings(input) == Issues{unknown_keyword("guess", "FIRST"),
                                    unknown_keyword("pcm", "SECOND"), unknown_group("nosuch"),
                                    raw_text("contrl"), unknown_keyword("pcm", "LAST"),
                                    unknown_group("alsonot")});
}

TEST_CASE("Groups of one name are checked each for itself") {
    GamessInput input;
    input.sections = {{"NOSUCH", {}, {}}, {"nosuch", {}, {}}};
    input.extra_sections = {{"$NOSUCH", {}, {}}};
    CHECK(findings(input) ==
          Issues{unknown_group("nosuch"), unknown_group("nosuch"), unknown_group("nosuch")});
}

TEST_CASE("What DATA holds is not checked") {
    GamessInput input;
    input.has_data = true;
    input.title = "FOO=1";
    input.data_lines = {"junk", "BAR=2"};
    CHECK(findings(input).empty());
}

TEST_CASE("An unknown keyword of a structured group that was read is reported twice") {
    CHECK(findings(read_deck(" $CONTRL SCFTYP=RHF FOO=1 $END\n")) ==
          Issues{unknown_keyword("contrl", "FOO"), unknown_keyword("contrl", "FOO")});
}

TEST_CASE("A keyword with a member that the schema lacks is reported once") {
    CHECK(findings(read_deck(" $CONTRL RUNTYP=ENERGY $END\n")) ==
          Issues{unknown_keyword("contrl", "RUNTYP")});
}

TEST_CASE("A value that does not convert is no finding while its keyword is known") {
    CHECK(findings(read_deck(" $CONTRL ICHARG=many $END\n")).empty());
}

TEST_CASE("A deck gives its findings group by group") {
    CHECK(findings(read_deck(" $CONTRL\n some words SCFTYP=RHF\n! note\n $END\n"
                             " $PCM SOLVNT=WATER FOO=1 $END\n"
                             " $NOSUCH A=1 $END\n"
                             " $VEC\n 1 1 A=1\n $END\n"
                             " $DATA\nB=1\nC1\n $END\n")) ==
          Issues{raw_text("contrl"), unknown_keyword("pcm", "FOO"), unknown_group("nosuch")});
}
