#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

constexpr std::string_view punched =
    " $VEC   \n 1  1 1.0-2.0\n $END   \n"
    " $HESS\nENERGY IS -76.0\n 1  1 0.5\n $END\n"
    " $VEC   \n 1  1 3.0-4.0\n $END\n";

constexpr std::string_view last_taken = "$VEC occurs 2 times; the last one is taken\n";

}  // namespace

TEST_CASE("A group that the deck has is replaced where it stands") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", "note\n $VEC\nold\n $END tail\n $SCF DIRSCF=.T. $END\n");
    CHECK(place.run({"splice", "a.inp", "--from", "job.dat", "VEC#1"}) ==
          Outcome{0, "note\n $VEC   \n 1  1 1.0-2.0\n $END tail\n $SCF DIRSCF=.T. $END\n", ""});
}

TEST_CASE("A group that the deck lacks is added behind the last one") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $SCF $END\n $DATA\nT\nC1\nH 1\n $END  behind\ncolophon\n");
    CHECK(place.run({"splice", "a.inp", "VEC#last", "HESS", "--from", "job.dat"}) ==
          Outcome{0,
                  " $SCF $END\n $DATA\nT\nC1\nH 1\n $END  behind\n"
                  " $VEC   \n 1  1 3.0-4.0\n $END\n"
                  " $HESS\nENERGY IS -76.0\n 1  1 0.5\n $END\n"
                  "colophon\n",
                  ""});
}

TEST_CASE("A group is added to a deck that ends without a line end") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"splice", "-", "--from", "job.dat", "VEC#1"}, {.input = " $SCF $END"}).out ==
          " $SCF $END\n $VEC   \n 1  1 1.0-2.0\n $END\n");
}

TEST_CASE("A group takes on the line ends of the deck") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place
              .run({"splice", "-", "--from", "job.dat", "VEC#1"},
                   {.input = " $SCF $END\r\n $PCM $END\r\n"})
              .out == " $SCF $END\r\n $PCM $END\r\n $VEC   \r\n 1  1 1.0-2.0\r\n $END\r\n");
}

TEST_CASE("The molecule can be put in, too") {
    const Workplace place;
    place.make("job.dat", " $DATA\nOptimized\nC1\nO 8.0 0 0 1\n $END\n");
    place.make("a.inp", " $DATA\nStart\nC1\nO 8.0\n $END\n $SCF $END\n");
    CHECK(place.run({"splice", "-i", "a.inp", "--from", "job.dat", "DATA"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp") == " $DATA\nOptimized\nC1\nO 8.0 0 0 1\n $END\n $SCF $END\n");
}

TEST_CASE("Of several copies in the source the last is taken, which is said") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $SCF $END\n");
    CHECK(place.run({"splice", "a.inp", "--from", "job.dat", "VEC", "-o", "b.inp"}) ==
          Outcome{0, "", "job.dat:8: note: " + std::string{last_taken}});
    CHECK(place.content_of("b.inp") == " $SCF $END\n $VEC   \n 1  1 3.0-4.0\n $END\n");
    CHECK(place.content_of("a.inp") == " $SCF $END\n");
}

TEST_CASE("The source may come from standard input") {
    const Workplace place;
    place.make("a.inp", " $SCF $END\n");
    CHECK(place.run({"splice", "a.inp", "--from", "-", "VEC"}, {.input = std::string{punched}}) ==
          Outcome{0, " $SCF $END\n $VEC   \n 1  1 3.0-4.0\n $END\n",
                  "<stdin>:8: note: " + std::string{last_taken}});
    CHECK(place.run({"splice", "-", "--from", "-", "VEC"}) ==
          Outcome{2, "", "gms-inp: error: deck and source cannot both be standard input\n"});
}

TEST_CASE("A deck that has the group several times is left alone") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $VEC\n 1\n $END\n $VEC\n 2\n $END\n");
    CHECK(place.run({"splice", "-i", "a.inp", "--from", "job.dat", "VEC#1"}) ==
          Outcome{2, "",
                  "a.inp: error: $VEC occurs 2 times, so it is not clear which one to replace; "
                  "remove them first\n"});
    CHECK(place.content_of("a.inp") == " $VEC\n 1\n $END\n $VEC\n 2\n $END\n");
}

TEST_CASE("No group is added behind one that is not closed") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"splice", "-", "--from", "job.dat", "HESS"}, {.input = "\n $SCF A=1\n"}) ==
          Outcome{2, "",
                  "<stdin>: error: $SCF in line 2 is not closed by $END, so no group can follow "
                  "it\n"});
}

TEST_CASE("When the source lacks a group, nothing is written and the status is 1") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $SCF $END\n");
    CHECK(place.run({"splice", "-i", "a.inp", "--from", "job.dat", "HESS", "GRAD"}) ==
          Outcome{1, "", "job.dat: error: $GRAD is not in the deck\n"});
    CHECK(place.content_of("a.inp") == " $SCF $END\n");
}

TEST_CASE("A deck in place is not written when it has the group already") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $SCF $END\n $HESS\nENERGY IS -76.0\n 1  1 0.5\n $END\n");
    const auto before = std::filesystem::last_write_time(place.path() / "a.inp");
    CHECK(place.run({"splice", "-i", "a.inp", "--from", "job.dat", "HESS"}) == Outcome{0, "", ""});
    CHECK(std::filesystem::last_write_time(place.path() / "a.inp") == before);
}

TEST_CASE("Wrong usage of splice has status 2") {
    const Workplace place;
    place.make("job.dat", punched);
    place.make("a.inp", " $SCF $END\n");
    CHECK(place.run({"splice", "a.inp", "VEC"}).status == 2);
    CHECK(place.run({"splice", "a.inp", "--from", "job.dat"}).status == 2);
    CHECK(place.run({"splice", "a.inp", "--from", "missing.dat", "VEC"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.dat: No such file or directory\n"});
    CHECK(place.run({"splice", "missing.inp", "--from", "job.dat", "HESS"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.run({"splice", "-i", "-", "--from", "job.dat", "HESS"}) ==
          Outcome{2, "", "gms-inp: error: standard input cannot be edited in place\n"});
}
