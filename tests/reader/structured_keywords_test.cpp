// Every keyword of the five structured groups, with a value that converts and one that does not.
#include <functional>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

struct KeywordRow {
    std::string keyword;
    std::string good;
    std::function<void(GamessInput&)> expected;  ///< what a good value changes
    std::string bad;                             ///< empty when every value converts
};

using Rows = std::vector<KeywordRow>;

/// Checks the whole document that each keyword gives. `record` makes the group belong to a deck and
/// gives the list of its further entries.
void check_keywords(const std::string& group, const Rows& rows,
                    const std::function<Entries&(GamessInput&)>& record) {
    for (const auto& row : rows) {
        CAPTURE(row.keyword);
        GamessInput converted;
        converted.sections = {{group, {{row.keyword, row.good}}, {}}};
        record(converted);
        row.expected(converted);
        CHECK(read_silently("$" + group + " " + row.keyword + "=" + row.good + " $END") ==
              converted);
        if (row.bad.empty()) continue;

        GamessInput kept;
        kept.sections = {{group, {{row.keyword, row.bad}}, {}}};
        record(kept) = {{row.keyword, row.bad}};
        CHECK(read_silently("$" + group + " " + row.keyword + "=" + row.bad + " $END") == kept);
    }
}

}  // namespace

TEST_CASE("Each keyword of CONTRL fills its member and raises its flag") {
    const Rows rows{
        {"SCFTYP", "rohf",
         [](GamessInput& deck) {
             deck.control.scftyp = "ROHF";
             deck.control.has_scftyp = true;
         },
         ""},
        {"RUNTYP", "Optimize",
         [](GamessInput& deck) {
             deck.control.runtyp = "OPTIMIZE";
             deck.control.has_runtyp = true;
         },
         ""},
        {"ICHARG", "-1",
         [](GamessInput& deck) {
             deck.control.icharg = -1;
             deck.control.has_icharg = true;
         },
         "abc"},
        {"MULT", "3",
         [](GamessInput& deck) {
             deck.control.mult = 3;
             deck.control.has_mult = true;
         },
         "1.0"},
        {"COORD", "zmt",
         [](GamessInput& deck) {
             deck.control.coord = "ZMT";
             deck.control.has_coord = true;
         },
         ""},
        {"UNITS", "bohr",
         [](GamessInput& deck) {
             deck.control.units = Units::Bohr;
             deck.control.has_units = true;
         },
         ""},
        {"NOSYM", "1",
         [](GamessInput& deck) {
             deck.control.nosym = true;
             deck.control.has_nosym = true;
         },
         "2"},
        {"MAXIT", "200", [](GamessInput& deck) { deck.control.maxit = 200; }, "many"},
        {"ISPHER", "-1", [](GamessInput& deck) { deck.control.ispher = -1; }, ".T."},
        {"EXETYP", "check", [](GamessInput& deck) { deck.control.exetyp = "CHECK"; }, ""},
        {"DFTTYP", "b3lyp", [](GamessInput& deck) { deck.control.dfttyp = "B3LYP"; }, ""},
        {"CITYP", "guga", [](GamessInput& deck) { deck.control.cityp = "GUGA"; }, ""},
        {"TDDFT", "excite", [](GamessInput& deck) { deck.control.tddft = "EXCITE"; }, ""},
        {"RELWFN", "dk", [](GamessInput& deck) { deck.control.relwfn = "DK"; }, ""},
        {"PP", "sbkjc", [](GamessInput& deck) { deck.control.pp = "SBKJC"; }, ""},
    };
    check_keywords("CONTRL", rows, [](GamessInput& deck) -> Entries& {
        deck.has_control = true;
        return deck.control.extra;
    });
}

TEST_CASE("Each keyword of SYSTEM fills its member") {
    const Rows rows{
        {"MWORDS", "50", [](GamessInput& deck) { deck.system->mwords = 50; }, "50M"},
        {"MEMDDI", "+7", [](GamessInput& deck) { deck.system->memddi = 7; }, "2147483648"},
    };
    check_keywords("SYSTEM", rows,
                   [](GamessInput& deck) -> Entries& { return deck.system.emplace().extra; });
}

TEST_CASE("Each keyword of BASIS fills its member") {
    const Rows rows{
        {"GBASIS", "n31", [](GamessInput& deck) { deck.basis->gbasis = "N31"; }, ""},
        {"NGAUSS", "6", [](GamessInput& deck) { deck.basis->ngauss = 6; }, "6.0"},
        {"NDFUNC", "1", [](GamessInput& deck) { deck.basis->ndfunc = 1; }, "one"},
        {"NPFUNC", "2", [](GamessInput& deck) { deck.basis->npfunc = 2; }, "two"},
        {"NFFUNC", "0", [](GamessInput& deck) { deck.basis->nffunc = 0; }, "-"},
        {"DIFFS", ".t.", [](GamessInput& deck) { deck.basis->diffs = true; }, "2"},
        {"DIFFSP", "no", [](GamessInput& deck) { deck.basis->diffsp = false; }, ".FALSE."},
    };
    check_keywords("BASIS", rows,
                   [](GamessInput& deck) -> Entries& { return deck.basis.emplace().extra; });
}

TEST_CASE("Each keyword of SCF fills its member") {
    const Rows rows{
        {"DIRSCF", ".T.", [](GamessInput& deck) { deck.scf->dirscf = true; }, ".TRUE."},
        {"DIIS", "false", [](GamessInput& deck) { deck.scf->diis = false; }, "maybe"},
        {"SOSCF", "Yes", [](GamessInput& deck) { deck.scf->soscf = true; }, "on"},
        {"FDIFF", "0", [](GamessInput& deck) { deck.scf->fdiff = false; }, "-1"},
        {"MOM", "T", [](GamessInput& deck) { deck.scf->mom = true; }, ".T"},
    };
    check_keywords("SCF", rows,
                   [](GamessInput& deck) -> Entries& { return deck.scf.emplace().extra; });
}

TEST_CASE("Each keyword of GUESS fills its member") {
    const Rows rows{
        {"GUESS", "moread", [](GamessInput& deck) { deck.guess->guess = "MOREAD"; }, ""},
        {"NORB", "12", [](GamessInput& deck) { deck.guess->norb = 12; }, "1 2"},
    };
    check_keywords("GUESS", rows,
                   [](GamessInput& deck) -> Entries& { return deck.guess.emplace().extra; });
}
