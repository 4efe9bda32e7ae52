// Each record is listed twice: designated initialisers compile only in the order of declaration,
// and structured bindings only when their number is that of the members. Together they fix both.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/model.hpp"

using namespace nurl::input::gamess;
using Entries = std::vector<KeyValue>;
using Lines = std::vector<std::string>;

namespace {

/// Whether `Member` is declared with exactly the type `Type`.
template <class Type, class Record>
constexpr bool declares(Type Record::* /*member*/) {
    return true;
}

template <class Record>
constexpr bool is_plain_value =
    std::is_aggregate_v<Record> && !std::is_polymorphic_v<Record> &&
    std::is_copy_constructible_v<Record> && std::is_copy_assignable_v<Record> &&
    std::is_nothrow_move_constructible_v<Record> && std::is_move_assignable_v<Record>;

static_assert(is_plain_value<KeyValue> && is_plain_value<NamedSection> &&
              is_plain_value<AtomRecord> && is_plain_value<ControlSection> &&
              is_plain_value<SystemSection> && is_plain_value<BasisSection> &&
              is_plain_value<ScfSection> && is_plain_value<GuessSection> &&
              is_plain_value<GamessInput> && is_plain_value<ParseResult> &&
              is_plain_value<validation::Issue>);

/// How many bytes into `record` its member lies.
template <class Record, class Member>
std::ptrdiff_t place(const Record& record, const Member& member) {
    return reinterpret_cast<const char*>(&member) - reinterpret_cast<const char*>(&record);
}

}  // namespace

TEST_CASE("An entry is a key and a value") {
    const KeyValue entry{.key = "SCFTYP", .value = "RHF"};
    const auto& [key, value] = entry;
    CHECK(key == "SCFTYP");
    CHECK(value == "RHF");
    static_assert(declares<std::string>(&KeyValue::key));
    static_assert(declares<std::string>(&KeyValue::value));
}

TEST_CASE("A group in generic form is a name and entries and raw lines") {
    const NamedSection section{.name = "PCM", .entries = {{"SOLVNT", "WATER"}}, .raw_lines = {"x"}};
    const auto& [name, entries, raw_lines] = section;
    CHECK(name == "PCM");
    CHECK(entries == Entries{{"SOLVNT", "WATER"}});
    CHECK(raw_lines == Lines{"x"});
    static_assert(declares<Entries>(&NamedSection::entries));
    static_assert(declares<Lines>(&NamedSection::raw_lines));
}

TEST_CASE("An atom is a symbol and an optional charge and three coordinates") {
    const AtomRecord atom{.symbol = "O", .nuclear_charge = 8.0, .x = 1.0, .y = 2.0, .z = 3.0};
    const auto& [symbol, nuclear_charge, x, y, z] = atom;
    CHECK(symbol == "O");
    CHECK(nuclear_charge == 8.0);
    CHECK(x == 1.0);
    CHECK(y == 2.0);
    CHECK(z == 3.0);
    static_assert(declares<std::optional<double>>(&AtomRecord::nuclear_charge));
    static_assert(declares<double>(&AtomRecord::x));
}

TEST_CASE("The control record has twenty-four members in a fixed order") {
    const ControlSection control{.has_scftyp = true,
                                 .has_runtyp = true,
                                 .has_icharg = true,
                                 .has_mult = true,
                                 .has_coord = true,
                                 .has_units = true,
                                 .has_nosym = true,
                                 .reserved = true,
                                 .scftyp = "UHF",
                                 .runtyp = "GRADIENT",
                                 .icharg = -1,
                                 .mult = 2,
                                 .coord = "UNIQUE",
                                 .units = Units::Bohr,
                                 .nosym = true,
                                 .maxit = 30,
                                 .ispher = 1,
                                 .exetyp = "CHECK",
                                 .dfttyp = "B3LYP",
                                 .cityp = "CIS",
                                 .tddft = "EXCITE",
                                 .relwfn = "DK",
                                 .pp = "SBKJC",
                                 .extra = {{"NPRINT", "-5"}}};
    const auto& [has_scftyp, has_runtyp, has_icharg, has_mult, has_coord, has_units, has_nosym,
                 reserved, scftyp, runtyp, icharg, mult, coord, units, nosym, maxit, ispher, exetyp,
                 dfttyp, cityp, tddft, relwfn, pp, extra] = control;
    CHECK(icharg == -1);
    CHECK(units == Units::Bohr);
    CHECK(nosym);
    CHECK(maxit == 30);
    CHECK(pp == "SBKJC");
    CHECK(extra == Entries{{"NPRINT", "-5"}});
    static_assert(declares<std::int32_t>(&ControlSection::icharg));
    static_assert(declares<std::int32_t>(&ControlSection::mult));
    static_assert(declares<std::optional<std::int32_t>>(&ControlSection::maxit));
    static_assert(declares<std::optional<std::int32_t>>(&ControlSection::ispher));
    static_assert(declares<std::optional<std::string>>(&ControlSection::tddft));
}

TEST_CASE("The control record opens with eight flags of one byte each") {
    const ControlSection control;
    CHECK(place(control, control.has_scftyp) == 0);
    CHECK(place(control, control.has_runtyp) == 1);
    CHECK(place(control, control.has_icharg) == 2);
    CHECK(place(control, control.has_mult) == 3);
    CHECK(place(control, control.has_coord) == 4);
    CHECK(place(control, control.has_units) == 5);
    CHECK(place(control, control.has_nosym) == 6);
    CHECK(place(control, control.reserved) == 7);
}

TEST_CASE("The system record is two memory sizes and further entries") {
    const SystemSection system{.mwords = 50, .memddi = 100, .extra = {{"TIMLIM", "10"}}};
    const auto& [mwords, memddi, extra] = system;
    CHECK(mwords == 50);
    CHECK(memddi == 100);
    CHECK(extra == Entries{{"TIMLIM", "10"}});
    static_assert(declares<std::optional<std::int32_t>>(&SystemSection::mwords));
}

TEST_CASE("The basis record has eight members in a fixed order") {
    const BasisSection basis{.gbasis = "N31",
                             .ngauss = 6,
                             .ndfunc = 1,
                             .npfunc = 2,
                             .nffunc = 3,
                             .diffs = true,
                             .diffsp = false,
                             .extra = {{"POLAR", "POPN31"}}};
    const auto& [gbasis, ngauss, ndfunc, npfunc, nffunc, diffs, diffsp, extra] = basis;
    CHECK(gbasis == "N31");
    CHECK(ngauss == 6);
    CHECK(ndfunc == 1);
    CHECK(npfunc == 2);
    CHECK(nffunc == 3);
    CHECK(diffs == true);
    CHECK(diffsp == false);
    CHECK(extra == Entries{{"POLAR", "POPN31"}});
    static_assert(declares<std::optional<bool>>(&BasisSection::diffs));
}

TEST_CASE("The SCF record is five switches and further entries") {
    const ScfSection scf{.dirscf = true,
                         .diis = false,
                         .soscf = true,
                         .fdiff = false,
                         .mom = true,
                         .extra = {{"NCONV", "8"}}};
    const auto& [dirscf, diis, soscf, fdiff, mom, extra] = scf;
    CHECK(dirscf == true);
    CHECK(diis == false);
    CHECK(soscf == true);
    CHECK(fdiff == false);
    CHECK(mom == true);
    CHECK(extra == Entries{{"NCONV", "8"}});
}

TEST_CASE("The guess record is a source and a number of orbitals and further entries") {
    const GuessSection guess{.guess = "MOREAD", .norb = 12, .extra = {{"MIX", ".T."}}};
    const auto& [source, norb, extra] = guess;
    CHECK(source == "MOREAD");
    CHECK(norb == 12);
    CHECK(extra == Entries{{"MIX", ".T."}});
}

TEST_CASE("A deck has thirteen members in a fixed order") {
    const GamessInput deck{.has_control = true,
                           .has_data = true,
                           .control = {},
                           .system = SystemSection{},
                           .basis = BasisSection{},
                           .scf = ScfSection{},
                           .guess = GuessSection{},
                           .extra_sections = {{"PCM", {}, {}}},
                           .sections = {{"CIS", {}, {}}},
                           .title = "Water",
                           .point_group = "CNV 2",
                           .atoms = {{"O", 8.0, 0.0, 0.0, 0.0}},
                           .data_lines = {" "}};
    const auto& [has_control, has_data, control, system, basis, scf, guess, extra_sections,
                 sections, title, point_group, atoms, data_lines] = deck;
    CHECK(has_data);
    CHECK(extra_sections.at(0).name == "PCM");
    CHECK(sections.at(0).name == "CIS");
    CHECK(title == "Water");
    CHECK(point_group == "CNV 2");
    CHECK(atoms.size() == 1);
    CHECK(data_lines == Lines{" "});
    static_assert(declares<ControlSection>(&GamessInput::control));
    static_assert(declares<std::optional<GuessSection>>(&GamessInput::guess));
}

TEST_CASE("What reading gives is a deck and an outcome and an error and warnings") {
    const ParseResult result{.input = {}, .ok = true, .error = "e", .warnings = {"w"}};
    const auto& [input, ok, error, warnings] = result;
    CHECK(input == GamessInput{});
    CHECK(ok);
    CHECK(error == "e");
    CHECK(warnings == Lines{"w"});
}

TEST_CASE("A finding is a severity and a group and a key and a message") {
    const validation::Issue issue{
        .severity = validation::Severity::Error, .section = "scf", .key = "DIIS", .message = "m"};
    const auto& [severity, section, key, message] = issue;
    CHECK(severity == validation::Severity::Error);
    CHECK(section == "scf");
    CHECK(key == "DIIS");
    CHECK(message == "m");
}
