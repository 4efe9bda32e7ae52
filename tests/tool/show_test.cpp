#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

constexpr std::string_view small =
    " $CONTRL RUNTYP=ENERGY UNITS=BOHR LOCAL=BOYS $END\n"
    " $SYSTEM MWORDS=10 $END\n"
    " $SCF DIRSCF=.T. $END\n"
    " $DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.1\n$END\n";

}  // namespace

TEST_CASE("Every value of the document has a line of its own") {
    const Workplace place;
    place.make("small.inp", small);
    CHECK(place.run({"show", "small.inp"}) == Outcome{0,
                                                      R"(has_control = true
has_data = true
control.has_scftyp = false
control.has_runtyp = true
control.has_icharg = false
control.has_mult = false
control.has_coord = false
control.has_units = true
control.has_nosym = false
control.scftyp = "RHF"
control.runtyp = "ENERGY"
control.icharg = 0
control.mult = 1
control.coord = ""
control.units = "BOHR"
control.nosym = false
control.maxit = null
control.ispher = null
control.exetyp = null
control.dfttyp = null
control.cityp = null
control.tddft = null
control.relwfn = null
control.pp = null
control.extra[0].key = "LOCAL"
control.extra[0].value = "BOYS"
system.mwords = 10
system.memddi = null
system.extra = []
basis = null
scf.dirscf = true
scf.diis = null
scf.soscf = null
scf.fdiff = null
scf.mom = null
scf.extra = []
guess = null
extra_sections = []
sections[0].name = "CONTRL"
sections[0].entries[0].key = "RUNTYP"
sections[0].entries[0].value = "ENERGY"
sections[0].entries[1].key = "UNITS"
sections[0].entries[1].value = "BOHR"
sections[0].entries[2].key = "LOCAL"
sections[0].entries[2].value = "BOYS"
sections[0].raw_lines = []
sections[1].name = "SYSTEM"
sections[1].entries[0].key = "MWORDS"
sections[1].entries[0].value = "10"
sections[1].raw_lines = []
sections[2].name = "SCF"
sections[2].entries[0].key = "DIRSCF"
sections[2].entries[0].value = ".T."
sections[2].raw_lines = []
title = "Title"
point_group = "C1"
atoms[0].symbol = "H"
atoms[0].nuclear_charge = 1.0
atoms[0].x = 0.0
atoms[0].y = 0.0
atoms[0].z = 0.1
data_lines = []
)",
                                                      ""});
}

TEST_CASE("JSON nests the same values in the order of the document's members") {
    const Workplace place;
    const Outcome outcome = place.run({"show", "--json", "-"},
                                      {.input = " $BASIS GBASIS=N31 NGAUSS=6 DIFFSP=.F. X=1 $END\n"
                                                " $GUESS GUESS=MOREAD NORB=5 $END\n"});
    const auto json = nlohmann::ordered_json::parse(outcome.out);
    CHECK(json["basis"].dump() ==
          R"({"gbasis":"N31","ngauss":6,"ndfunc":null,"npfunc":null,"nffunc":null,"diffs":null,)"
          R"("diffsp":false,"extra":[{"key":"X","value":"1"}]})");
    CHECK(json["guess"].dump() == R"({"guess":"MOREAD","norb":5,"extra":[]})");
    std::string members;
    for (const auto& [name, value] : json.items()) members += name + ' ';
    CHECK(members ==
          "has_control has_data control system basis scf guess extra_sections sections title "
          "point_group atoms data_lines ");
    CHECK(outcome.status == 0);
}

TEST_CASE("Every optional member of $CONTRL is shown when it is there") {
    const Workplace place;
    const Outcome outcome =
        place.run({"show", "--json", "-"},
                  {.input = " $CONTRL SCFTYP=UHF ICHARG=-1 MULT=2 COORD=CART NOSYM=1 MAXIT=50\n"
                            " ISPHER=1 EXETYP=CHECK DFTTYP=B3LYP CITYP=NONE TDDFT=EXCITE\n"
                            " RELWFN=DK PP=SBKJC $END\n"});
    CHECK(nlohmann::ordered_json::parse(outcome.out)["control"].dump() ==
          R"({"has_scftyp":true,"has_runtyp":false,"has_icharg":true,"has_mult":true,)"
          R"("has_coord":true,"has_units":false,"has_nosym":true,"scftyp":"UHF",)"
          R"("runtyp":"ENERGY","icharg":-1,"mult":2,"coord":"CART","units":"ANGS",)"
          R"("nosym":true,"maxit":50,"ispher":1,"exetyp":"CHECK","dfttyp":"B3LYP",)"
          R"("cityp":"NONE","tddft":"EXCITE","relwfn":"DK","pp":"SBKJC","extra":[]})");
}

TEST_CASE("Kept lines of the molecule and free text are shown as they are held") {
    const Workplace place;
    const Outcome outcome =
        place.run({"show", "-"}, {.input = " $PCM text\n $END\n $DATA\nT\nC1\n  S 1 \n$END\n"});
    CHECK(outcome.out.find("sections[0].raw_lines[0] = \"text\"\n") != std::string::npos);
    CHECK(outcome.out.find("data_lines[0] = \"  S 1 \"\n") != std::string::npos);
}

TEST_CASE("Bytes that are not UTF-8 become replacement characters") {
    const Workplace place;
    const std::string_view deck = " $DATA\nM\xFCnchen \xC3\xA9\nC1\n$END\n";
    place.make("latin1.inp", deck);
    const Outcome json = place.run({"show", "--json", "latin1.inp"});
    CHECK(json.out.find("  \"title\": \"M\\ufffdnchen \\u00e9\",\n") != std::string::npos);
    CHECK(json.status == 0);
    const Outcome text = place.run({"show", "latin1.inp"});
    CHECK(text.out.find("title = \"M\\ufffdnchen \\u00e9\"\n") != std::string::npos);
    CHECK(text.status == 0);
}

TEST_CASE("Control characters of values are escaped as JSON does") {
    const Workplace place;
    const Outcome outcome =
        place.run({"show", "-"}, {.input = " $DATA\n\033[31m\x7F\xC2\x9B\nC1\n$END\n"});
    CHECK(outcome.out.find("title = \"\\u001b[31m\\u007f\\u009b\"\n") != std::string::npos);
}

TEST_CASE("What is no deck cannot be shown") {
    const Workplace place;
    CHECK(place.run({"show", "missing.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
}
