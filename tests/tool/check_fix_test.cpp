#include <csignal>
#include <filesystem>

#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "tool/file_size_limit.hpp"
#include "tool/workplace.hpp"

using nurl::test::FileSizeLimit;
using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

constexpr std::string_view broken = "! note\n$CONTRL SCFTYP=RHF $END\n $STRANGE A=1 $END\n";
constexpr std::string_view mended = "! note\n $CONTRL SCFTYP=RHF $END\n $STRANGE A=1 $END\n";

constexpr std::string_view reason =
    "GAMESS does not find $CONTRL: its $ must stand in column 2, behind one space "
    "[header-column]\n";
constexpr std::string_view strange =
    "info: Section $STRANGE is not currently described by the GAMESS schema [unknown-group]\n";

std::vector<std::string> fix(const std::vector<std::string>& more) {
    std::vector<std::string> words{"check", "--fix", "--disable", "missing-molecule"};
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

}  // namespace

TEST_CASE("A safe remedy is applied to the file, and what remains is reported") {
    const Workplace place;
    place.make("a.inp", broken);
    CHECK(place.run(fix({"a.inp"})) ==
          Outcome{0,
                  "a.inp:2:1: fixed: " + std::string{reason} +
                      "a.inp:3:2: " + std::string{strange} + "1 file: 1 note, 1 fixed\n",
                  ""});
    CHECK(place.content_of("a.inp") == mended);
    CHECK(place.names() == std::vector<std::string>{"a.inp"});
    CHECK(place.run(fix({"-q", "a.inp"})).out == "1 file: 1 note\n");
}

TEST_CASE("A remedy may bring another fault to light, which is mended, too") {
    const Workplace place;
    place.make("a.inp", "$CONTRL SCFTYP=RHF\n$SCF DIRSCF=.T. $END\n");
    const Outcome outcome = place.run(fix({"-q", "a.inp"}));
    CHECK(outcome == Outcome{0, "1 file: no findings, 3 fixed\n", ""});
    CHECK(place.content_of("a.inp") == " $CONTRL SCFTYP=RHF $END\n $SCF DIRSCF=.T. $END\n");
}

TEST_CASE("A rule that is switched off mends nothing") {
    const Workplace place;
    place.make("a.inp", broken);
    CHECK(place.run(fix({"--disable", "header-column", "-q", "a.inp"})).out == "1 file: 1 note\n");
    CHECK(place.content_of("a.inp") == broken);
}

TEST_CASE("A file with nothing to mend is not written") {
    const Workplace place;
    place.make("a.inp", " $CONTRL RUNTPY=ENERGY $END\n");
    const auto before = std::filesystem::last_write_time(place.path() / "a.inp");
    CHECK(place.run(fix({"-q", "a.inp"})) == Outcome{1, "1 file: 1 warning\n", ""});
    CHECK(std::filesystem::last_write_time(place.path() / "a.inp") == before);
}

TEST_CASE("Many files are mended, through links, too") {
    const Workplace place;
    place.make("a.inp", broken);
    place.make("b.inp", broken);
    std::filesystem::create_symlink("b.inp", place.path() / "link.inp");
    CHECK(place.run(fix({"-q", "a.inp", "missing.inp", "link.inp"})) ==
          Outcome{2, "3 files: 2 notes, 2 fixed, 1 unreadable\n",
                  "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.content_of("a.inp") == mended);
    CHECK(place.content_of("b.inp") == mended);
    CHECK(std::filesystem::is_symlink(place.path() / "link.inp"));
}

TEST_CASE("When the remedy cannot be written, its finding remains") {
    const Workplace place;
    const std::string large = std::string{broken} + std::string(8192, '!');
    place.make("a.inp", large);
    Outcome outcome;
    {
        const FileSizeLimit limit{4096};
        outcome = place.run(fix({"a.inp"}));
    }
    CHECK(outcome == Outcome{2,
                             "a.inp:2:1: error: " + std::string{reason} + "a.inp:3:2: " +
                                 std::string{strange} + "1 file: 1 error, 1 note, 1 not written\n",
                             "gms-inp: error: cannot write a.inp\n"});
    CHECK(place.content_of("a.inp") == large);
}

TEST_CASE("JSON lists what was fixed by its place before") {
    const Workplace place;
    place.make("a.inp", broken);
    const auto json = nlohmann::json::parse(place.run(fix({"--json", "a.inp"})).out);
    const auto& file = json["files"][0];
    REQUIRE(file["fixed"].size() == 1);
    CHECK(file["fixed"][0]["rule"] == "header-column");
    CHECK(file["fixed"][0]["line"] == 2);
    CHECK(file["fixed"][0]["column"] == 1);
    REQUIRE(file["findings"].size() == 1);
    CHECK(file["findings"][0]["rule"] == "unknown-group");
    CHECK(json["summary"]["fixed"] == 1);
}

TEST_CASE("Standard input cannot be mended in place") {
    const Workplace place;
    place.make("a.inp", broken);
    CHECK(place.run(fix({"a.inp", "-"}), {.input = std::string{broken}}) ==
          Outcome{2, "", "gms-inp: error: standard input cannot be fixed in place\n"});
    CHECK(place.content_of("a.inp") == broken);
}
