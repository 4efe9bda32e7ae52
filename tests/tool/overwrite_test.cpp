#include <filesystem>

#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

constexpr std::string_view deck = " $scf dirscf=.t. $end\n";

Outcome refusal(const std::string& output) {
    return {2, "",
            "gms-inp: error: output is the file that is read (-i edits a deck in place): " +
                output + "\n"};
}

}  // namespace

TEST_CASE("No command writes its output over the deck it reads") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("b.inp", deck);
    CHECK(place.run({"format", "a.inp", "-o", "a.inp"}) == refusal("a.inp"));
    CHECK(place.run({"format", "a.inp", "-o", "./a.inp"}) == refusal("./a.inp"));
    CHECK(place.run({"set", "a.inp", "SCF.DIRSCF=.F.", "-o", "a.inp"}) == refusal("a.inp"));
    CHECK(place.run({"unset", "a.inp", "SCF.DIRSCF", "-o", "a.inp"}) == refusal("a.inp"));
    CHECK(place.run({"extract", "a.inp", "SCF", "-o", "a.inp"}) == refusal("a.inp"));
    CHECK(place.run({"splice", "a.inp", "SCF", "--from", "b.inp", "-o", "a.inp"}) ==
          refusal("a.inp"));
    CHECK(place.run({"splice", "a.inp", "SCF", "--from", "b.inp", "-o", "b.inp"}) ==
          refusal("b.inp"));
    CHECK(place.content_of("a.inp") == deck);
    CHECK(place.content_of("b.inp") == deck);
}

TEST_CASE("A symbolic link to the deck is the deck") {
    const Workplace place;
    place.make("a.inp", deck);
    std::filesystem::create_symlink("a.inp", place.path() / "link.inp");
    CHECK(place.run({"format", "a.inp", "-o", "link.inp"}) == refusal("link.inp"));
    CHECK(place.run({"format", "link.inp", "-o", "a.inp"}) == refusal("a.inp"));
    CHECK(place.content_of("a.inp") == deck);
}

TEST_CASE("A hard link to the deck is the deck") {
    const Workplace place;
    place.make("a.inp", deck);
    std::filesystem::create_hard_link(place.path() / "a.inp", place.path() / "link.inp");
    CHECK(place.run({"format", "a.inp", "-o", "link.inp"}) == refusal("link.inp"));
}

TEST_CASE("The file behind standard input is the deck") {
    const Workplace place;
    place.make("a.inp", deck);
    CHECK(place.run({"format", "-", "-o", "a.inp"},
                    {.input_path = (place.path() / "a.inp").string()}) == refusal("a.inp"));
    CHECK(place.content_of("a.inp") == deck);
}

TEST_CASE("Another file is overwritten") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("b.inp", "old");
    CHECK(place.run({"format", "a.inp", "-o", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.content_of("b.inp") == deck);
}

TEST_CASE("An output that cannot be written is trouble and says so alone") {
    const Workplace place;
    place.make("a.inp", deck);
    CHECK(place.run({"format", "a.inp", "-o", "missing/b.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot write missing/b.inp\n"});
    CHECK(place.run({"set", "a.inp", "SCF.MAXIT=1", "-o", "."}) ==
          Outcome{2, "", "gms-inp: error: cannot write .\n"});
    CHECK(place.run({"extract", "a.inp", "SCF", "-o", "missing/b.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot write missing/b.inp\n"});
    CHECK(place.names() == std::vector<std::string>{"a.inp"});
}
