#include "source/check/near_name.hpp"

#include <doctest/doctest.h>

using nurl::input::gamess::source::checks::NearNames;

namespace {

struct NearRow {
    std::string name;
    std::string word;
    std::string question;
};

}  // namespace

TEST_CASE("The nearest known names are asked for") {
    const NearNames known({"scftyp", "RUNTYP", "MULT", "MAXIT", "MD", "MP2", "PP", "N",
                           std::string(24, 'B'), std::string(25, 'A')});
    const std::vector<NearRow> rows{
        {"a letter too many", "SCFTYPE", "did you mean SCFTYP?"},
        {"a letter too few", "RUNTP", "did you mean RUNTYP?"},
        {"a letter too few in a short name", "MLT", "did you mean MULT?"},
        {"two letters", "PQ", "did you mean PP?"},
        {"two changes in five letters", "MAKIP", "did you mean MAXIT?"},
        {"another letter", "MULP", "did you mean MULT?"},
        {"two neighbours exchanged", "RUTNYP", "did you mean RUNTYP?"},
        {"exchanged in a short name", "MUTL", "did you mean MULT?"},
        {"the first two letters exchanged", "UMLT", "did you mean MULT?"},
        {"a letter one place further on", "XMLT", ""},
        {"two changes", "SCFTIPE", "did you mean SCFTYP?"},
        {"three changes", "SCFTIPES", ""},
        {"two changes in a short name", "MUPP", ""},
        {"two names at one distance", "MPD", "did you mean MD or MP2?"},
        {"the nearer of two", "PP2", "did you mean MP2 or PP?"},
        {"a single letter", "M", ""},
        {"small letters", "maxlt", "did you mean MAXIT?"},
        {"the name itself", "MULT", ""},
        {"an empty word", "", ""},
        {"a word of 23 letters", std::string(23, 'B'),
         "did you mean " + std::string(24, 'B') + "?"},
        {"a word of 24 letters", std::string(23, 'B') + 'C',
         "did you mean " + std::string(24, 'B') + "?"},
        {"a word of 25 letters", std::string(25, 'B'), ""},
        {"24 letters that are near to a longer name alone", std::string(24, 'A'), ""},
        {"a word of 26 letters", std::string(26, 'A'), ""},
    };
    for (const NearRow& row : rows) {
        CAPTURE(row.name);
        CHECK(known.question(row.word) == row.question);
    }
}

TEST_CASE("Of more than two names the first two by letter are asked for") {
    const NearNames known({"ABD", "ABC", "ABB"});
    CHECK(known.question("ABX") == "did you mean ABB or ABC?");
}

TEST_CASE("Without known names nothing is near") { CHECK(NearNames({}).question("MULT").empty()); }
