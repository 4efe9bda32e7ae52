#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

constexpr std::string_view molecule =
    "3\nWater molecule\no 0.0 0.0 0.1173\nh 0.0 0.7572 -0.4692\nh 0.0 -0.7572 -0.4692\n";

constexpr std::string_view atoms =
    " O    8.0      0.0000000000      0.0000000000      0.1173000000\n"
    " H    1.0      0.0000000000      0.7572000000     -0.4692000000\n"
    " H    1.0      0.0000000000     -0.7572000000     -0.4692000000\n";

}  // namespace

TEST_CASE("A deck is built from an XYZ file with the comment as its title") {
    const Workplace place;
    place.make("w.xyz", molecule);
    const Outcome outcome = place.run({"new", "--xyz", "w.xyz", "--basis", "n31"});
    CHECK(outcome.status == 0);
    CHECK(outcome.err.empty());
    CHECK(outcome.out ==
          " $CONTRL SCFTYP=RHF RUNTYP=ENERGY ICHARG=0 MULT=1 $END\n"
          " $BASIS GBASIS=N31 $END\n"
          " $DATA\nWater molecule\nC1\n" +
              std::string{atoms} + " $END\n");
}

TEST_CASE("Every option of new goes where it belongs") {
    const Workplace place;
    place.make("w.xyz", molecule);
    const Outcome outcome = place.run({"new",
                                       "--xyz",
                                       "w.xyz",
                                       "--charge",
                                       "1",
                                       "--mult",
                                       "2",
                                       "--scftyp",
                                       "uhf",
                                       "--runtyp",
                                       "optimize",
                                       "--basis",
                                       "ccd",
                                       "--title",
                                       "Cation",
                                       "--point-group",
                                       "Cnv 2",
                                       "--set",
                                       "statpt.opttol=1E-5",
                                       "--set",
                                       "scf.dirscf=.t.",
                                       "--set",
                                       "contrl.local=boys",
                                       "-o",
                                       "w.inp"});
    CHECK(outcome == Outcome{0, "", ""});
    CHECK(place.content_of("w.inp") ==
          " $CONTRL SCFTYP=UHF RUNTYP=OPTIMIZE ICHARG=1 MULT=2 LOCAL=boys $END\n"
          " $BASIS GBASIS=CCD $END\n"
          " $STATPT OPTTOL=1E-5 $END\n"
          " $SCF DIRSCF=.t. $END\n"
          " $DATA\nCation\nCnv 2\n\n" +
              std::string{atoms} + " $END\n");
}

TEST_CASE("A molecule may come from standard input") {
    const Workplace place;
    const Outcome outcome = place.run({"new", "--xyz", "-", "--basis", "ccd", "-o", "w.inp"},
                                      {.input = std::string{molecule}});
    CHECK(outcome == Outcome{0, "", ""});
    CHECK(place.run({"get", "w.inp", "BASIS.GBASIS"}) == Outcome{0, "CCD\n", ""});
}

TEST_CASE("A malformed molecule is told with file and line, and nothing is written") {
    const Workplace place;
    place.make("bad.xyz", "2\n\nH 0 0 0\nF 0 0\n");
    const Outcome outcome = place.run({"new", "--xyz", "bad.xyz", "-o", "bad.inp"});
    CHECK(outcome == Outcome{2, "",
                             "bad.xyz:4: error: expected atom 2 of 2 as 'symbol x y z', found "
                             "'F 0 0'\n"});
    CHECK(place.names() == std::vector<std::string>{"bad.xyz"});
}

TEST_CASE("What is odd about a new deck is said, and the deck is written all the same") {
    const Workplace place;
    place.make("odd.xyz", "1\n\nXx 0 0 0\n");
    const Outcome outcome = place.run({"new", "--xyz", "odd.xyz", "--mult", "2", "-o", "odd.inp"});
    CHECK(outcome.status == 0);
    CHECK(outcome.err ==
          "odd.xyz: warning: 'Xx' is no element; it is written with charge 0.0\n"
          "odd.xyz: warning: no basis set: give --basis or --set BASIS.GBASIS=...\n"
          "odd.xyz: warning: SCFTYP=RHF stands for singlets only: give --scftyp ROHF or UHF\n"
          "odd.inp:1:44: error: 0 electrons do not go with MULT=2: the charges of the atoms are 0 "
          "in all, ICHARG is 0 [electron-count]\n");
    CHECK(place.content_of("odd.inp").find(" Xx   0.0 ") != std::string::npos);
}

TEST_CASE("What GAMESS would not take of a new deck is said with its place in the deck") {
    const Workplace place;
    place.make("w.xyz", molecule);
    const Outcome outcome = place.run({"new", "--xyz", "w.xyz", "--basis", "n31", "--point-group",
                                       "nosuch", "--set", "scf.dirskf=.t."});
    CHECK(outcome.status == 0);
    CHECK(outcome.err.find("<stdout>:6:1: error: GAMESS knows no point group") !=
          std::string::npos);
    CHECK(outcome.err.find("[point-group-name]\n") != std::string::npos);
    CHECK(outcome.err.find("did you mean DIRSCF? [unknown-keyword]\n") != std::string::npos);
}

TEST_CASE("A title or a point group that would end the molecule is refused") {
    const Workplace place;
    place.make("end.xyz", "1\nthe $end\nHe 0 0 0\n");
    place.make("he.xyz", "1\nhelium\nHe 0 0 0\n");
    const Outcome refused{2, "",
                          "gms-inp: error: the title or the point group would end $DATA; --title "
                          "and --point-group give others\n"};
    CHECK(place.run({"new", "--xyz", "end.xyz", "--basis", "n31"}) == refused);
    CHECK(place.run({"new", "--xyz", "he.xyz", "--title", "$CONTRL MULT=3"}) == refused);
    CHECK(place.run({"new", "--xyz", "he.xyz", "--point-group", "C1 $END"}) == refused);
    CHECK(place.run({"new", "--xyz", "end.xyz", "--basis", "n31", "--title", "He"}).status == 0);
}

TEST_CASE("A new deck never replaces its molecule, and values that do not read back are refused") {
    const Workplace place;
    place.make("w.xyz", molecule);
    CHECK(place.run({"new", "--xyz", "w.xyz", "-o", "w.xyz"}).status == 2);
    CHECK(place.content_of("w.xyz") == molecule);
    const Outcome outcome = place.run({"new", "--xyz", "w.xyz", "--set", "PCM.SOLVNT=A$B"});
    CHECK(outcome.status == 2);
    CHECK(outcome.out.empty());
    CHECK(outcome.err == "gms-inp: error: $PCM.SOLVNT: Value cannot be read back: A$B\n");
}

TEST_CASE("Wrong usage of new has status 2") {
    const Workplace place;
    place.make("w.xyz", molecule);
    CHECK(place.run({"new"}).status == 2);
    CHECK(place.run({"new", "--xyz", "missing.xyz"}).status == 2);
    CHECK(place.run({"new", "--xyz", "w.xyz", "--mult", "two"}).status == 2);
    CHECK(place.run({"new", "--xyz", "w.xyz", "--set", "NSTEP=5"}).status == 2);
    CHECK(place.run({"new", "--xyz", "w.xyz", "--set", "DATA.X=5"}).status == 2);
}
