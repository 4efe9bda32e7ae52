#include "support/structured_values.hpp"

#include <array>

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::Units;

namespace nurl::test {

namespace {

using Deck = GamessInput;

constexpr auto text = ValueKind::Text;
constexpr auto integer = ValueKind::Integer;
constexpr auto logical = ValueKind::Logical;

void set_units(Deck& deck, Units units) {
    deck.control.has_units = true;
    deck.control.units = units;
}

void set_nosym(Deck& deck, bool nosym) {
    deck.control.has_nosym = true;
    deck.control.nosym = nosym;
}

constexpr auto rows = std::to_array<StructuredValue>({
    {"CONTRL", "SCFTYP", text, "uhf", "UHF",
     [](Deck& deck) {
         deck.control.has_scftyp = true;
         deck.control.scftyp = "UHF";
     }},
    {"CONTRL", "RUNTYP", text, "Optimize", "OPTIMIZE",
     [](Deck& deck) {
         deck.control.has_runtyp = true;
         deck.control.runtyp = "OPTIMIZE";
     }},
    {"CONTRL", "ICHARG", integer, "-2", "-2",
     [](Deck& deck) {
         deck.control.has_icharg = true;
         deck.control.icharg = -2;
     }},
    {"CONTRL", "MULT", integer, "+3", "3",
     [](Deck& deck) {
         deck.control.has_mult = true;
         deck.control.mult = 3;
     }},
    {"CONTRL", "COORD", text, "unique", "UNIQUE",
     [](Deck& deck) {
         deck.control.has_coord = true;
         deck.control.coord = "UNIQUE";
     }},
    {"CONTRL", "UNITS", ValueKind::Units, "bohr", "BOHR",
     [](Deck& deck) { set_units(deck, Units::Bohr); }},
    {"CONTRL", "UNITS", ValueKind::Units, "parsec", "ANGS",
     [](Deck& deck) { set_units(deck, Units::Angstrom); }},
    {"CONTRL", "NOSYM", logical, "yes", "1", [](Deck& deck) { set_nosym(deck, true); }},
    {"CONTRL", "NOSYM", logical, "no", "0", [](Deck& deck) { set_nosym(deck, false); }},
    {"CONTRL", "MAXIT", integer, "0100", "100", [](Deck& deck) { deck.control.maxit = 100; }},
    {"CONTRL", "ISPHER", integer, "-1", "-1", [](Deck& deck) { deck.control.ispher = -1; }},
    {"CONTRL", "EXETYP", text, "check", "CHECK", [](Deck& deck) { deck.control.exetyp = "CHECK"; }},
    {"CONTRL", "DFTTYP", text, "b3lyp", "B3LYP", [](Deck& deck) { deck.control.dfttyp = "B3LYP"; }},
    {"CONTRL", "CITYP", text, "Aldet", "ALDET", [](Deck& deck) { deck.control.cityp = "ALDET"; }},
    {"CONTRL", "TDDFT", text, "excite", "EXCITE",
     [](Deck& deck) { deck.control.tddft = "EXCITE"; }},
    {"CONTRL", "RELWFN", text, "lut-iotc", "LUT-IOTC",
     [](Deck& deck) { deck.control.relwfn = "LUT-IOTC"; }},
    {"CONTRL", "PP", text, "mcp", "MCP", [](Deck& deck) { deck.control.pp = "MCP"; }},

    {"SYSTEM", "MWORDS", integer, "250", "250", [](Deck& deck) { deck.system->mwords = 250; }},
    {"SYSTEM", "MEMDDI", integer, "2147483647", "2147483647",
     [](Deck& deck) { deck.system->memddi = 2147483647; }},

    {"BASIS", "GBASIS", text, "n31", "N31", [](Deck& deck) { deck.basis->gbasis = "N31"; }},
    {"BASIS", "NGAUSS", integer, "6", "6", [](Deck& deck) { deck.basis->ngauss = 6; }},
    {"BASIS", "NDFUNC", integer, "+2", "2", [](Deck& deck) { deck.basis->ndfunc = 2; }},
    {"BASIS", "NPFUNC", integer, "01", "1", [](Deck& deck) { deck.basis->npfunc = 1; }},
    {"BASIS", "NFFUNC", integer, "-0", "0", [](Deck& deck) { deck.basis->nffunc = 0; }},
    {"BASIS", "DIFFS", logical, ".t.", ".T.", [](Deck& deck) { deck.basis->diffs = true; }},
    {"BASIS", "DIFFS", logical, ".f.", ".F.", [](Deck& deck) { deck.basis->diffs = false; }},
    {"BASIS", "DIFFSP", logical, "T", ".T.", [](Deck& deck) { deck.basis->diffsp = true; }},
    {"BASIS", "DIFFSP", logical, "F", ".F.", [](Deck& deck) { deck.basis->diffsp = false; }},

    {"SCF", "DIRSCF", logical, "1", ".T.", [](Deck& deck) { deck.scf->dirscf = true; }},
    {"SCF", "DIRSCF", logical, "false", ".F.", [](Deck& deck) { deck.scf->dirscf = false; }},
    {"SCF", "DIIS", logical, "True", ".T.", [](Deck& deck) { deck.scf->diis = true; }},
    {"SCF", "DIIS", logical, "No", ".F.", [](Deck& deck) { deck.scf->diis = false; }},
    {"SCF", "SOSCF", logical, "YES", ".T.", [](Deck& deck) { deck.scf->soscf = true; }},
    {"SCF", "SOSCF", logical, "f", ".F.", [](Deck& deck) { deck.scf->soscf = false; }},
    {"SCF", "FDIFF", logical, ".T.", ".T.", [](Deck& deck) { deck.scf->fdiff = true; }},
    {"SCF", "FDIFF", logical, ".F.", ".F.", [](Deck& deck) { deck.scf->fdiff = false; }},
    {"SCF", "MOM", logical, "t", ".T.", [](Deck& deck) { deck.scf->mom = true; }},
    {"SCF", "MOM", logical, "FALSE", ".F.", [](Deck& deck) { deck.scf->mom = false; }},

    {"GUESS", "GUESS", text, "huckel", "HUCKEL", [](Deck& deck) { deck.guess->guess = "HUCKEL"; }},
    {"GUESS", "NORB", integer, "-2147483648", "-2147483648",
     [](Deck& deck) { deck.guess->norb = -2147483647 - 1; }},
});

}  // namespace

std::span<const StructuredValue> structured_values() { return rows; }

void add_structured(GamessInput& deck, std::string_view group) {
    if (group == "CONTRL") deck.has_control = true;
    if (group == "SYSTEM") deck.system.emplace();
    if (group == "BASIS") deck.basis.emplace();
    if (group == "SCF") deck.scf.emplace();
    if (group == "GUESS") deck.guess.emplace();
}

std::vector<nurl::input::gamess::KeyValue>& extra_of(GamessInput& deck, std::string_view group) {
    if (group == "SYSTEM") return deck.system->extra;
    if (group == "BASIS") return deck.basis->extra;
    if (group == "SCF") return deck.scf->extra;
    if (group == "GUESS") return deck.guess->extra;
    return deck.control.extra;
}

GamessInput deck_with(std::string_view group) {
    GamessInput deck;
    add_structured(deck, group);
    return deck;
}

}  // namespace nurl::test
