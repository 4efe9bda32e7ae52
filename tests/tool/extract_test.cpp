#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

constexpr std::string_view punched =
    "--- FIRST ---\n"
    " $VEC   \n"
    " 1  1 1.0-2.0\n"
    " $END   \n"
    " $HESS\n"
    "ENERGY IS -76.0\n"
    " 1  1 0.5\n"
    " $END\n"
    "--- SECOND ---\n"
    " $VEC   \n"
    " 1  1 3.0-4.0\n"
    " $END\n";

constexpr std::string_view first_orbitals = " $VEC   \n 1  1 1.0-2.0\n $END\n";
constexpr std::string_view last_orbitals = " $VEC   \n 1  1 3.0-4.0\n $END\n";
constexpr std::string_view hessian = " $HESS\nENERGY IS -76.0\n 1  1 0.5\n $END\n";

}  // namespace

TEST_CASE("A group is written from its header to its end") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat", "hess"}) == Outcome{0, std::string{hessian}, ""});
    CHECK(place.run({"extract", "-", "$HESS"}, {.input = std::string{punched}}).out == hessian);
}

TEST_CASE("Of several copies the last is taken, which is said") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat", "VEC"}) ==
          Outcome{0, std::string{last_orbitals},
                  "job.dat:10: note: $VEC occurs 2 times; the last one is taken\n"});
}

TEST_CASE("A copy that is asked for is taken without a word") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat", "VEC#1"}) ==
          Outcome{0, std::string{first_orbitals}, ""});
    CHECK(place.run({"extract", "job.dat", "VEC#LAST"}) ==
          Outcome{0, std::string{last_orbitals}, ""});
}

TEST_CASE("Several groups are written in the order asked for") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat", "HESS", "VEC#1", "-o", "restart.txt"}) ==
          Outcome{0, "", ""});
    CHECK(place.content_of("restart.txt") == std::string{hessian} + std::string{first_orbitals});
}

TEST_CASE("When a group is not there, nothing is written and the status is 1") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat", "HESS", "GRAD", "-o", "out.txt"}) ==
          Outcome{1, "", "job.dat: error: $GRAD is not in the deck\n"});
    CHECK(place.run({"extract", "job.dat", "VEC#3", "-o", "out.txt"}) ==
          Outcome{1, "", "job.dat: error: $VEC#3 is not in the deck, which has $VEC 2 times\n"});
    CHECK(place.names() == std::vector<std::string>{"job.dat"});
}

TEST_CASE("A group without its end is not taken out") {
    const Workplace place;
    CHECK(place.run({"extract", "-", "VEC"}, {.input = "\n $VEC\n 1  1 1.0\n"}) ==
          Outcome{2, "", "gms-inp: error: <stdin>: $VEC in line 2 is not closed by $END\n"});
}

TEST_CASE("Wrong usage of extract has status 2") {
    const Workplace place;
    place.make("job.dat", punched);
    CHECK(place.run({"extract", "job.dat"}).status == 2);
    CHECK(place.run({"extract", "missing.dat", "VEC"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.dat: No such file or directory\n"});
    CHECK(place.run({"extract", "job.dat", "VEC#x"}) ==
          Outcome{2, "", "gms-inp: error: expected GROUP, GROUP#n or GROUP#last, not 'VEC#x'\n"});
}
