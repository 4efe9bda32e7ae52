#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <doctest/doctest.h>

#include "tool/file_size_limit.hpp"
#include "tool/workplace.hpp"

using nurl::test::FileSizeLimit;
using nurl::test::Outcome;
using nurl::test::Workplace;

namespace fs = std::filesystem;

namespace {

constexpr std::string_view deck = "! note\n $SCF MAXIT=1 ! few\n $END\n";
constexpr std::string_view edited = "! note\n $SCF MAXIT=20 ! few\n $END\n";

struct stat status_of(const Workplace& place, const std::string& name) {
    struct stat status {};
    REQUIRE(::stat((place.path() / name).c_str(), &status) == 0);
    return status;
}

}  // namespace

TEST_CASE("A deck is edited in place, and nothing is printed") {
    const Workplace place;
    place.make("a.inp", deck);
    CHECK(place.run({"set", "-i", "a.inp", "SCF.MAXIT=20"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp") == edited);
    CHECK(place.run({"unset", "a.inp", "SCF.MAXIT", "--in-place"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp") == "! note\n $SCF ! few\n $END\n");
    CHECK(place.names() == std::vector<std::string>{"a.inp"});
}

TEST_CASE("Many decks are edited in place") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("b.inp", " $SCF DIRSCF=.T. $END\n");
    CHECK(place.run({"set", "a.inp", "b.inp", "-i", "SCF.MAXIT=20"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp") == edited);
    CHECK(place.content_of("b.inp") == " $SCF DIRSCF=.T. MAXIT=20 $END\n");
}

TEST_CASE("A deck that says it already is not written") {
    const Workplace place;
    place.make("a.inp", deck);
    fs::create_hard_link(place.path() / "a.inp", place.path() / "b.inp");
    const struct stat before = status_of(place, "a.inp");
    CHECK(place.run({"set", "-i", "a.inp", "SCF.MAXIT=1"}) == Outcome{0, "", ""});
    const struct stat after = status_of(place, "a.inp");
    CHECK(after.st_ino == before.st_ino);
    CHECK(after.st_mtim.tv_sec == before.st_mtim.tv_sec);
    CHECK(after.st_mtim.tv_nsec == before.st_mtim.tv_nsec);
}

TEST_CASE("A symbolic link stays one and its file is edited") {
    const Workplace place;
    fs::create_directory(place.path() / "decks");
    place.make("decks/a.inp", deck);
    fs::create_symlink("decks/a.inp", place.path() / "link.inp");
    CHECK(place.run({"set", "-i", "link.inp", "SCF.MAXIT=20"}) == Outcome{0, "", ""});
    CHECK(fs::is_symlink(place.path() / "link.inp"));
    CHECK(place.content_of("decks/a.inp") == edited);
}

TEST_CASE("A deck keeps its mode, and a read-only one is refused to all but the superuser") {
    const Workplace place;
    place.make("a.inp", deck);
    REQUIRE(::chmod((place.path() / "a.inp").c_str(), S_IRUSR | S_IRGRP) == 0);
    const Outcome outcome = place.run({"set", "-i", "a.inp", "SCF.MAXIT=20"});
    CHECK((status_of(place, "a.inp").st_mode & 07777U) == (S_IRUSR | S_IRGRP));
    if (::geteuid() == 0) {
        CHECK(outcome == Outcome{0, "", ""});
        CHECK(place.content_of("a.inp") == edited);
    } else {
        CHECK(outcome == Outcome{2, "", "gms-inp: error: cannot write a.inp\n"});
        CHECK(place.content_of("a.inp") == deck);
    }
}

TEST_CASE("A deck that cannot be written stays as it was, and the others are edited") {
    const Workplace place;
    const std::string large(8192, '!');
    const std::string large_deck = " $SCF MAXIT=1 $END\n" + large;
    place.make("large.inp", large_deck);
    place.make("a.inp", deck);
    Outcome outcome;
    {
        const FileSizeLimit limit{4096};
        outcome = place.run({"set", "-i", "large.inp", "a.inp", "SCF.MAXIT=20"});
    }
    CHECK(outcome == Outcome{2, "", "gms-inp: error: cannot write large.inp\n"});
    CHECK(place.content_of("large.inp") == large_deck);
    CHECK(place.content_of("a.inp") == edited);
    CHECK(place.names() == std::vector<std::string>{"a.inp", "large.inp"});
}

TEST_CASE("An error in one deck does not keep the others from being edited") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("open.inp", " $SCF DIRSCF=.T.\n");
    place.make("empty.inp", "");
    CHECK(place.run({"set", "-i", "open.inp", "empty.inp", "a.inp", "SCF.MAXIT=20"}) ==
          Outcome{2, "",
                  "open.inp: error: $SCF.MAXIT: Section is not closed by $END: SCF\n"
                  "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"});
    CHECK(place.content_of("open.inp") == " $SCF DIRSCF=.T.\n");
    CHECK(place.content_of("a.inp") == edited);
}

TEST_CASE("When one assignment cannot be done, none of that deck is") {
    const Workplace place;
    place.make("a.inp", deck);
    CHECK(place.run({"set", "-i", "a.inp", "SCF.MAXIT=20", "DATA.X=1"}) ==
          Outcome{2, "", "a.inp: error: $DATA.X: $DATA does not support key=value editing\n"});
    CHECK(place.content_of("a.inp") == deck);
}

TEST_CASE("What is not there in one deck to unset gives status 1, and the others are edited") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("b.inp", " $PCM A=1 $END\n");
    CHECK(place.run({"unset", "-i", "b.inp", "a.inp", "SCF.MAXIT"}) ==
          Outcome{1, "", "b.inp: error: $SCF.MAXIT is not in the deck\n"});
    CHECK(place.content_of("a.inp") == "! note\n $SCF ! few\n $END\n");
    CHECK(place.content_of("b.inp") == " $PCM A=1 $END\n");
}

TEST_CASE("Several decks need -i, and one is edited only by leave") {
    const Workplace place;
    place.make("a.inp", deck);
    place.make("b.inp", deck);
    const Outcome refused{2, "",
                          "gms-inp: error: several decks can only be edited in place: give -i\n"};
    CHECK(place.run({"set", "a.inp", "b.inp", "SCF.MAXIT=20"}) == refused);
    CHECK(place.run({"unset", "a.inp", "b.inp", "SCF.MAXIT", "-o", "c.inp"}) == refused);
    CHECK(place.run({"format", "a.inp", "b.inp"}) == refused);
    CHECK(place.content_of("a.inp") == deck);
    CHECK(place.names() == std::vector<std::string>{"a.inp", "b.inp"});
}

TEST_CASE("Standard input has no place to be edited in") {
    const Workplace place;
    place.make("a.inp", deck);
    const Outcome refused{2, "", "gms-inp: error: standard input cannot be edited in place\n"};
    CHECK(place.run({"set", "-i", "-", "SCF.MAXIT=20"}, {.input = std::string{deck}}) == refused);
    CHECK(place.run({"unset", "-i", "a.inp", "-", "SCF.MAXIT"}) == refused);
    CHECK(place.run({"format", "-i", "-"}) == refused);
    CHECK(place.content_of("a.inp") == deck);
}

TEST_CASE("An output and in place exclude each other") {
    const Workplace place;
    place.make("a.inp", deck);
    CHECK(place.run({"set", "-i", "-o", "b.inp", "a.inp", "SCF.MAXIT=20"}).status == 2);
    CHECK(place.content_of("a.inp") == deck);
    CHECK(place.names() == std::vector<std::string>{"a.inp"});
}
