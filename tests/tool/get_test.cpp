#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

/// A punched file with two sets of orbitals.
constexpr std::string_view punched =
    "--- CLOSED SHELL ORBITALS ---\n"
    " $VEC   \n"
    " 1  1 1.00000000E+00-2.00000000E+00\n"
    " $END   \n"
    "--- OPTIMIZED ---\n"
    " $VEC   \n"
    " 1  1 3.00000000E+00-4.00000000E+00\n"
    " $END\n";

}  // namespace

TEST_CASE("The value of a keyword is printed on a line") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", "CONTRL.SCFTYP"}) == Outcome{0, "RHF\n", ""});
    CHECK(place.run({"get", "water.inp", "statpt.opttol"}) == Outcome{0, "1.0E-5\n", ""});
}

TEST_CASE("Names may have a dollar sign and blanks around them") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", " $Basis . gbasis "}).out == "N31\n");
}

TEST_CASE("The value that counts is the last one over all copies of a group") {
    const Workplace place;
    CHECK(place.run({"get", "-", "STATPT.OPTTOL"},
                    {.input = " $STATPT OPTTOL=1 NSTEP=3 $END\n $STATPT OPTTOL=2 $END\n"}) ==
          Outcome{0, "2\n", ""});
}

TEST_CASE("A keyword in a comment has no value") {
    const Workplace place;
    CHECK(place.run({"get", "-", "SCF.DIRSCF"}, {.input = " $SCF ! DIRSCF=.T.\n $END\n"}) ==
          Outcome{1, "", "<stdin>: error: $SCF.DIRSCF is not in the deck\n"});
}

TEST_CASE("A value that goes on in the next line is printed on one") {
    const Workplace place;
    CHECK(place.run({"get", "-", "STATPT.IFREEZ(1)"},
                    {.input = " $STATPT IFREEZ(1)=1, 2\n   3,\n   4 $END\n"}) ==
          Outcome{0, "1, 2 3,4\n", ""});
}

TEST_CASE("A group is printed as it is written") {
    const Workplace place;
    place.make("a.inp", "one\n $scf dirscf=.t. ! why not\n\n  $end done\n $PCM A=1 $END\n");
    CHECK(place.run({"get", "a.inp", "SCF"}).out == " $scf dirscf=.t. ! why not\n\n  $end\n");
    CHECK(place.run({"get", "a.inp", "pcm"}).out == " $PCM A=1 $END\n");
}

TEST_CASE("A group keeps its line ends, and one without end gets a newline") {
    const Workplace place;
    CHECK(place.run({"get", "-", "SCF"}, {.input = " $SCF\r\n $END\r\n $PCM $END\r\n"}).out ==
          " $SCF\r\n $END\r\n");
    CHECK(place.run({"get", "-", "SCF"}, {.input = " $SCF A=1\n\n"}).out == " $SCF A=1\n");
    CHECK(place.run({"get", "-", "SCF"}, {.input = " $SCF A=1 $END"}).out == " $SCF A=1 $END\n");
}

TEST_CASE("The copies of a group are printed all, or the one that is asked for") {
    const Workplace place;
    place.make("job.dat", punched);
    const std::string first = " $VEC   \n 1  1 1.00000000E+00-2.00000000E+00\n $END\n";
    const std::string second = " $VEC   \n 1  1 3.00000000E+00-4.00000000E+00\n $END\n";
    CHECK(place.run({"get", "job.dat", "VEC"}) == Outcome{0, first + second, ""});
    CHECK(place.run({"get", "job.dat", "VEC#1"}) == Outcome{0, first, ""});
    CHECK(place.run({"get", "job.dat", "$vec # 2"}) == Outcome{0, second, ""});
    CHECK(place.run({"get", "job.dat", "VEC#last"}) == Outcome{0, second, ""});
    CHECK(place.run({"get", "job.dat", "VEC#3"}) ==
          Outcome{1, "", "job.dat: error: $VEC#3 is not in the deck, which has $VEC 2 times\n"});
}

TEST_CASE("An empty group is there, and so is an empty value") {
    const Workplace place;
    CHECK(place.run({"get", "-", "SCF"}, {.input = " $SCF $END\n"}) ==
          Outcome{0, " $SCF $END\n", ""});
    CHECK(place.run({"get", "-", "SCF.A"}, {.input = " $SCF A= $END\n"}) == Outcome{0, "\n", ""});
}

TEST_CASE("A group or keyword that is not there gives a message and status 1") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", "pcm"}) ==
          Outcome{1, "", "water.inp: error: $PCM is not in the deck\n"});
    CHECK(place.run({"get", "water.inp", "pcm#last"}) ==
          Outcome{1, "", "water.inp: error: $PCM#last is not in the deck\n"});
    CHECK(place.run({"get", "water.inp", "basis#2"}) ==
          Outcome{1, "", "water.inp: error: $BASIS#2 is not in the deck, which has $BASIS once\n"});
    CHECK(place.run({"get", "water.inp", "contrl.maxit"}) ==
          Outcome{1, "", "water.inp: error: $CONTRL.MAXIT is not in the deck\n"});
    CHECK(place.run({"get", "water.inp", "data.x"}) ==
          Outcome{1, "", "water.inp: error: $DATA.X is not in the deck\n"});
}

TEST_CASE("A group that GAMESS does not see is not there, and the message says why") {
    const Workplace place;
    const std::string deck = "one\n$SCF DIRSCF=.T. $END\n";
    const std::string reason =
        "; GAMESS does not see the one in line 2, whose $ is not in column 2 behind a blank\n";
    CHECK(place.run({"get", "-", "SCF"}, {.input = deck}) ==
          Outcome{1, "", "<stdin>: error: $SCF is not in the deck" + reason});
    CHECK(place.run({"get", "-", "SCF.DIRSCF"}, {.input = deck}) ==
          Outcome{1, "", "<stdin>: error: $SCF.DIRSCF is not in the deck" + reason});
}

TEST_CASE("A path of another shape is wrong usage") {
    const Workplace place;
    place.make("water.inp", water);
    const auto message_for = [&](const std::string& path) {
        const Outcome outcome = place.run({"get", "water.inp", path});
        CHECK(outcome.status == 2);
        return outcome.err;
    };
    CHECK(message_for(".SCFTYP") == "gms-inp: error: expected GROUP or GROUP.KEY, not '.SCFTYP'\n");
    CHECK(message_for("CONTRL.") == "gms-inp: error: expected GROUP or GROUP.KEY, not 'CONTRL.'\n");
    CHECK(message_for("CONTRL#1.SCFTYP") ==
          "gms-inp: error: expected GROUP or GROUP.KEY, not 'CONTRL#1.SCFTYP'\n");
    for (const std::string path : {"$", "VEC#", "VEC#0", "VEC#-1", "VEC#2x", "VEC#first", "#1"}) {
        CAPTURE(path);
        CHECK(message_for(path) ==
              "gms-inp: error: expected GROUP, GROUP#n or GROUP#last, not '" + path + "'\n");
    }
}

TEST_CASE("Values of several decks stand behind the names of their decks") {
    const Workplace place;
    place.make("a.inp", " $SCF MAXIT=1 $END\n");
    place.make("b.inp", " $SCF MAXIT=2 $END\n");
    CHECK(place.run({"get", "a.inp", "b.inp", "SCF.MAXIT"}) ==
          Outcome{0, "a.inp: 1\nb.inp: 2\n", ""});
    CHECK(place.run({"get", "b.inp", "-", "SCF.MAXIT"}, {.input = " $SCF MAXIT=3 $END\n"}).out ==
          "b.inp: 2\n<stdin>: 3\n");
}

TEST_CASE("Groups of several decks stand below the names of their decks") {
    const Workplace place;
    place.make("a.inp", " $SCF MAXIT=1 $END\n");
    place.make("b\033.inp", " $SCF MAXIT=2 $END\n");
    CHECK(place.run({"get", "a.inp", "b\033.inp", "SCF"}).out ==
          "==> a.inp <==\n $SCF MAXIT=1 $END\n==> b\\x1B.inp <==\n $SCF MAXIT=2 $END\n");
}

TEST_CASE("What one deck lacks does not keep the others from answering") {
    const Workplace place;
    place.make("a.inp", " $SCF MAXIT=1 $END\n");
    place.make("b.inp", " $PCM A=1 $END\n");
    CHECK(place.run({"get", "b.inp", "a.inp", "SCF.MAXIT"}) ==
          Outcome{1, "a.inp: 1\n", "b.inp: error: $SCF.MAXIT is not in the deck\n"});
    CHECK(place.run({"get", "missing.inp", "b.inp", "a.inp", "SCF.MAXIT"}) ==
          Outcome{2, "a.inp: 1\n",
                  "gms-inp: error: cannot read missing.inp: No such file or directory\n"
                  "b.inp: error: $SCF.MAXIT is not in the deck\n"});
}

TEST_CASE("The last argument is the path, though a file may have its name") {
    const Workplace place;
    place.make("a.inp", " $SCF MAXIT=1 $END\n");
    place.make("SCF", " $SCF MAXIT=2 $END\n");
    CHECK(place.run({"get", "a.inp", "SCF"}).out == " $SCF MAXIT=1 $END\n");
}

TEST_CASE("A directory and a text without groups are no decks to get from") {
    const Workplace place;
    place.make("empty.inp", "");
    CHECK(place.run({"get", ".", "empty.inp", "SCF"}) ==
          Outcome{2, "",
                  "gms-inp: error: cannot read .: Is a directory\n"
                  "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"});
}

TEST_CASE("Bytes of values pass through unchanged when the output is no terminal") {
    const Workplace place;
    CHECK(place.run({"get", "-", "PCM.NAME"}, {.input = " $PCM NAME=a\033\xE9\x01 b $END\n"}).out ==
          "a\033\xE9\x01 b\n");
}
