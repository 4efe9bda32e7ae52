#include "nurl/input/gamess/builder.hpp"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "model/entries.hpp"
#include "model/structured_fields.hpp"
#include "model/text_view.hpp"
#include "nurl/chem/elements.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/writer.hpp"

namespace nurl::input::gamess {

namespace {

using core::text::to_upper_copy;
using detail::normalised_entry;

/// Stores a value in the flagged member of a keyword of `$CONTRL`.
template <class Value>
void set_control(GamessInput& input, std::string_view keyword, Value value) {
    using Member = detail::Flagged<ControlSection, Value>;
    const auto& member = std::get<Member>(detail::find_field<ControlSection>(keyword)->member);
    input.has_control = true;
    input.control.*member.value = std::move(value);
    input.control.*member.given = true;
}

/// The record of a group, made empty when it is absent.
template <class Record>
Record& engaged(std::optional<Record>& record) {
    return record ? *record : record.emplace();
}

/// Appends an entry to a record, which is made when it is absent.
template <class Record>
void add_entry(std::optional<Record>& record, std::string_view key, std::string_view value) {
    if (record) {
        record->extra.push_back(normalised_entry(key, value));
        return;
    }
    Record made;
    made.extra.push_back(normalised_entry(key, value));
    record = std::move(made);
}

AtomRecord normalised(AtomRecord atom) {
    atom.symbol = chem::elements::normalize_symbol(atom.symbol);
    if (!atom.nuclear_charge)
        atom.nuclear_charge = chem::elements::atomic_number_from_symbol(atom.symbol);
    return atom;
}

/// The atom of a geometry, still to be normalised.
AtomRecord converted(const core::Atom& atom) {
    return {atom.symbol, std::nullopt, atom.x, atom.y, atom.z};
}

}  // namespace

InputBuilder::InputBuilder() {
    input_.has_control = true;
    input_.has_data = true;
    input_.control.has_scftyp = true;
    input_.control.has_runtyp = true;
    input_.control.has_icharg = true;
    input_.control.has_mult = true;
    input_.point_group = "C1";
}

const GamessInput& InputBuilder::input() const noexcept { return input_; }

InputBuilder& InputBuilder::set_charge_and_multiplicity(int charge, int multiplicity) {
    set_control(input_, "ICHARG", std::int32_t{charge});
    set_control(input_, "MULT", std::int32_t{multiplicity});
    return *this;
}

// NOLINTBEGIN(performance-unnecessary-value-param): taking texts by value is part of the contract

InputBuilder& InputBuilder::set_scftyp(std::string text) {
    set_control(input_, "SCFTYP", to_upper_copy(text));
    return *this;
}

InputBuilder& InputBuilder::set_runtyp(std::string text) {
    set_control(input_, "RUNTYP", to_upper_copy(text));
    return *this;
}

InputBuilder& InputBuilder::set_coord(std::string text) {
    set_control(input_, "COORD", to_upper_copy(text));
    return *this;
}

InputBuilder& InputBuilder::set_units(Units value) {
    set_control(input_, "UNITS", value);
    return *this;
}

InputBuilder& InputBuilder::set_nosym(bool value) {
    set_control(input_, "NOSYM", value);
    return *this;
}

InputBuilder& InputBuilder::set_maxit(int maxit) {
    input_.has_control = true;
    input_.control.maxit = maxit;
    return *this;
}

InputBuilder& InputBuilder::set_basis_keyword(std::string gbasis) {
    engaged(input_.basis).gbasis = to_upper_copy(gbasis);
    return *this;
}

InputBuilder& InputBuilder::set_ngauss(int ngauss) {
    engaged(input_.basis).ngauss = ngauss;
    return *this;
}

InputBuilder& InputBuilder::set_system_mwords(int mwords) {
    engaged(input_.system).mwords = mwords;
    return *this;
}

InputBuilder& InputBuilder::set_guess(std::string guess) {
    engaged(input_.guess).guess = to_upper_copy(guess);
    return *this;
}

InputBuilder& InputBuilder::set_title(std::string title) {
    input_.title = std::move(title);
    return *this;
}

InputBuilder& InputBuilder::set_point_group(std::string point_group) {
    if (detail::is_blank_text(point_group)) point_group = "C1";
    input_.point_group = std::move(point_group);
    return *this;
}

InputBuilder& InputBuilder::add_atom(const AtomRecord& atom) {
    input_.atoms.push_back(normalised(atom));
    input_.has_data = true;
    return *this;
}

InputBuilder& InputBuilder::add_atom(const core::Atom& atom) { return add_atom(converted(atom)); }

InputBuilder& InputBuilder::set_geometry(const std::vector<AtomRecord>& atoms) {
    std::vector<AtomRecord> replacement;
    replacement.reserve(atoms.size());
    for (const AtomRecord& atom : atoms) replacement.push_back(normalised(atom));
    input_.atoms = std::move(replacement);
    input_.has_data = true;
    return *this;
}

InputBuilder& InputBuilder::set_geometry(const core::Geometry& geometry) {
    std::vector<AtomRecord> atoms;
    atoms.reserve(geometry.atoms.size());
    for (const core::Atom& atom : geometry.atoms) atoms.push_back(converted(atom));
    return set_geometry(atoms);
}

InputBuilder& InputBuilder::add_control_keyword(std::string key, std::string value) {
    input_.control.extra.push_back(normalised_entry(key, value));
    input_.has_control = true;
    return *this;
}

InputBuilder& InputBuilder::add_system_keyword(std::string key, std::string value) {
    add_entry(input_.system, key, value);
    return *this;
}

InputBuilder& InputBuilder::add_basis_keyword(std::string key, std::string value) {
    add_entry(input_.basis, key, value);
    return *this;
}

InputBuilder& InputBuilder::add_scf_keyword(std::string key, std::string value) {
    add_entry(input_.scf, key, value);
    return *this;
}

InputBuilder& InputBuilder::add_guess_keyword(std::string key, std::string value) {
    add_entry(input_.guess, key, value);
    return *this;
}

// NOLINTEND(performance-unnecessary-value-param)

InputBuilder& InputBuilder::add_control_flag(std::string key, bool value) {
    return add_control_keyword(std::move(key), format_boolean(value));
}

InputBuilder& InputBuilder::add_scf_flag(std::string key, bool value) {
    return add_scf_keyword(std::move(key), format_boolean(value));
}

InputBuilder& InputBuilder::add_basis_flag(std::string key, bool value) {
    return add_basis_keyword(std::move(key), format_boolean(value));
}

InputBuilder& InputBuilder::add_section(const NamedSection& section) {
    input_.extra_sections.push_back(section);
    return *this;
}

InputBuilder& InputBuilder::add_section(NamedSection&& section) {
    input_.extra_sections.push_back(std::move(section));
    return *this;
}

std::string InputBuilder::to_string() const { return input_.to_string(); }

void InputBuilder::write_file(const std::string& path) const { input_.write_file(path); }

}  // namespace nurl::input::gamess
