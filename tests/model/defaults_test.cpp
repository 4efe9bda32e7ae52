#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/model.hpp"

using namespace nurl::input::gamess;

namespace {

/// One expectation about a new record: which member, and whether it holds its default.
struct Row {
    std::string member;
    bool holds;
};

void check_all(const std::vector<Row>& rows) {
    for (const Row& row : rows) CHECK_MESSAGE(row.holds, row.member);
}

}  // namespace

TEST_CASE("A new control record gives no keyword and asks for the energy of a closed shell") {
    const ControlSection control;
    check_all({
        {"has_scftyp", !control.has_scftyp},
        {"has_runtyp", !control.has_runtyp},
        {"has_icharg", !control.has_icharg},
        {"has_mult", !control.has_mult},
        {"has_coord", !control.has_coord},
        {"has_units", !control.has_units},
        {"has_nosym", !control.has_nosym},
        {"reserved", !control.reserved},
        {"scftyp", control.scftyp == "RHF"},
        {"runtyp", control.runtyp == "ENERGY"},
        {"icharg", control.icharg == 0},
        {"mult", control.mult == 1},
        {"coord", control.coord.empty()},
        {"units", control.units == Units::Angstrom},
        {"nosym", !control.nosym},
        {"maxit", !control.maxit.has_value()},
        {"ispher", !control.ispher.has_value()},
        {"exetyp", !control.exetyp.has_value()},
        {"dfttyp", !control.dfttyp.has_value()},
        {"cityp", !control.cityp.has_value()},
        {"tddft", !control.tddft.has_value()},
        {"relwfn", !control.relwfn.has_value()},
        {"pp", !control.pp.has_value()},
        {"extra", control.extra.empty()},
    });
}

TEST_CASE("The other new structured records are empty") {
    const SystemSection system;
    const BasisSection basis;
    const ScfSection scf;
    const GuessSection guess;
    check_all({
        {"mwords", !system.mwords.has_value()},    {"memddi", !system.memddi.has_value()},
        {"extra of system", system.extra.empty()}, {"gbasis", !basis.gbasis.has_value()},
        {"ngauss", !basis.ngauss.has_value()},     {"ndfunc", !basis.ndfunc.has_value()},
        {"npfunc", !basis.npfunc.has_value()},     {"nffunc", !basis.nffunc.has_value()},
        {"diffs", !basis.diffs.has_value()},       {"diffsp", !basis.diffsp.has_value()},
        {"extra of basis", basis.extra.empty()},   {"dirscf", !scf.dirscf.has_value()},
        {"diis", !scf.diis.has_value()},           {"soscf", !scf.soscf.has_value()},
        {"fdiff", !scf.fdiff.has_value()},         {"mom", !scf.mom.has_value()},
        {"extra of scf", scf.extra.empty()},       {"guess", !guess.guess.has_value()},
        {"norb", !guess.norb.has_value()},         {"extra of guess", guess.extra.empty()},
    });
}

TEST_CASE("A new deck is as the reader starts it") {
    const GamessInput deck;
    check_all({
        {"has_control", !deck.has_control},
        {"has_data", !deck.has_data},
        {"control", deck.control == ControlSection{}},
        {"system", !deck.system.has_value()},
        {"basis", !deck.basis.has_value()},
        {"scf", !deck.scf.has_value()},
        {"guess", !deck.guess.has_value()},
        {"extra_sections", deck.extra_sections.empty()},
        {"sections", deck.sections.empty()},
        {"title", deck.title.empty()},
        {"point_group", deck.point_group.empty()},
        {"atoms", deck.atoms.empty()},
        {"data_lines", deck.data_lines.empty()},
    });
}

TEST_CASE("The small records are empty when new") {
    const KeyValue entry;
    const NamedSection section;
    const AtomRecord atom;
    const ParseResult result;
    const validation::Issue issue;
    check_all({
        {"key", entry.key.empty()},
        {"value", entry.value.empty()},
        {"name", section.name.empty()},
        {"entries", section.entries.empty()},
        {"raw_lines", section.raw_lines.empty()},
        {"symbol", atom.symbol.empty()},
        {"nuclear_charge", !atom.nuclear_charge.has_value()},
        {"x", atom.x == 0.0},
        {"y", atom.y == 0.0},
        {"z", atom.z == 0.0},
        {"input", result.input == GamessInput{}},
        {"ok", !result.ok},
        {"error", result.error.empty()},
        {"warnings", result.warnings.empty()},
        {"severity", issue.severity == validation::Severity::Info},
        {"section of an issue", issue.section.empty()},
        {"key of an issue", issue.key.empty()},
        {"message", issue.message.empty()},
    });
}
