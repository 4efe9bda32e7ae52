// Each keyword is one statement.
#include "second_reading/plain_records.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "second_reading/plain_scanner.hpp"
#include "second_reading/plain_text.hpp"

namespace nurl::test {

namespace {

using input::gamess::BasisSection;
using input::gamess::ControlSection;
using input::gamess::GamessInput;
using input::gamess::GuessSection;
using input::gamess::KeyValue;
using input::gamess::NamedSection;
using input::gamess::ScfSection;
using input::gamess::SystemSection;
using input::gamess::Units;
using Text = std::string;

bool take(const Text& value, Text& text) {
    text = plain::upper(value);
    return true;
}

bool take(const Text& value, Units& units) {
    units = plain::upper(value) == "BOHR" ? Units::Bohr : Units::Angstrom;
    return true;
}

bool take(const Text& value, std::int32_t& number) {
    const std::optional<std::int32_t> integer = plain::integer_of(value);
    if (integer) number = *integer;
    return integer.has_value();
}

bool take(const Text& value, bool& flag) {
    const Text word = plain::upper(value);
    const bool is_true =
        word == ".T." || word == "T" || word == "TRUE" || word == "YES" || word == "1";
    const bool is_false =
        word == ".F." || word == "F" || word == "FALSE" || word == "NO" || word == "0";
    if (is_true || is_false) flag = is_true;
    return is_true || is_false;
}

template <class Value>
bool take(const Text& value, std::optional<Value>& member) {
    Value taken{};
    if (!take(value, taken)) return false;
    member = taken;
    return true;
}

template <class Value>
bool take(const Text& value, Value& member, bool& is_given) {
    if (!take(value, member)) return false;
    is_given = true;
    return true;
}

bool take_keyword(const Text& key, const Text& value, ControlSection& control) {
    if (key == "SCFTYP") return take(value, control.scftyp, control.has_scftyp);
    if (key == "RUNTYP") return take(value, control.runtyp, control.has_runtyp);
    if (key == "ICHARG") return take(value, control.icharg, control.has_icharg);
    if (key == "MULT") return take(value, control.mult, control.has_mult);
    if (key == "COORD") return take(value, control.coord, control.has_coord);
    if (key == "UNITS") return take(value, control.units, control.has_units);
    if (key == "NOSYM") return take(value, control.nosym, control.has_nosym);
    if (key == "MAXIT") return take(value, control.maxit);
    if (key == "ISPHER") return take(value, control.ispher);
    if (key == "EXETYP") return take(value, control.exetyp);
    if (key == "DFTTYP") return take(value, control.dfttyp);
    if (key == "CITYP") return take(value, control.cityp);
    if (key == "TDDFT") return take(value, control.tddft);
    if (key == "RELWFN") return take(value, control.relwfn);
    if (key == "PP") return take(value, control.pp);
    return false;
}

bool take_keyword(const Text& key, const Text& value, SystemSection& system) {
    if (key == "MWORDS") return take(value, system.mwords);
    if (key == "MEMDDI") return take(value, system.memddi);
    return false;
}

bool take_keyword(const Text& key, const Text& value, BasisSection& basis) {
    if (key == "GBASIS") return take(value, basis.gbasis);
    if (key == "NGAUSS") return take(value, basis.ngauss);
    if (key == "NDFUNC") return take(value, basis.ndfunc);
    if (key == "NPFUNC") return take(value, basis.npfunc);
    if (key == "NFFUNC") return take(value, basis.nffunc);
    if (key == "DIFFS") return take(value, basis.diffs);
    if (key == "DIFFSP") return take(value, basis.diffsp);
    return false;
}

bool take_keyword(const Text& key, const Text& value, ScfSection& scf) {
    if (key == "DIRSCF") return take(value, scf.dirscf);
    if (key == "DIIS") return take(value, scf.diis);
    if (key == "SOSCF") return take(value, scf.soscf);
    if (key == "FDIFF") return take(value, scf.fdiff);
    if (key == "MOM") return take(value, scf.mom);
    return false;
}

bool take_keyword(const Text& key, const Text& value, GuessSection& guess) {
    if (key == "GUESS") return take(value, guess.guess);
    if (key == "NORB") return take(value, guess.norb);
    return false;
}

/// The entries of a group and the pairs that stand in its raw lines.
std::vector<KeyValue> all_entries(const NamedSection& section) {
    std::vector<KeyValue> entries = section.entries;
    for (const std::string& line : section.raw_lines)
        for (const auto& pair : scan_plainly(line)) entries.push_back({pair.key, pair.value});
    return entries;
}

template <class Record>
void lift(const NamedSection& section, Record& record) {
    for (const KeyValue& entry : all_entries(section))
        if (!take_keyword(entry.key, plain::trimmed(entry.value), record))
            record.extra.push_back(entry);
}

template <class Record>
void lift(const NamedSection& section, std::optional<Record>& record) {
    if (!record) record = Record{};
    lift(section, *record);
}

}  // namespace

void lift_plainly(const NamedSection& section, GamessInput& input) {
    if (section.name == "CONTRL") {
        input.has_control = true;
        lift(section, input.control);
    }
    if (section.name == "SYSTEM") lift(section, input.system);
    if (section.name == "BASIS") lift(section, input.basis);
    if (section.name == "SCF") lift(section, input.scf);
    if (section.name == "GUESS") lift(section, input.guess);
}

}  // namespace nurl::test
