#include "model_json.hpp"

#include <nlohmann/json.hpp>

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;
using Json = nlohmann::ordered_json;

template <class Value>
Json optional_json(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

Json element_json(const std::string& text) { return text; }

Json element_json(const gamess::KeyValue& entry) {
    return {{"key", entry.key}, {"value", entry.value}};
}

Json element_json(const gamess::AtomRecord& atom) {
    return {{"symbol", atom.symbol},
            {"nuclear_charge", optional_json(atom.nuclear_charge)},
            {"x", atom.x},
            {"y", atom.y},
            {"z", atom.z}};
}

Json element_json(const gamess::NamedSection& section);

template <class Element>
Json list_json(const std::vector<Element>& elements) {
    Json list = Json::array();
    for (const Element& element : elements) list.push_back(element_json(element));
    return list;
}

Json element_json(const gamess::NamedSection& section) {
    return {{"name", section.name},
            {"entries", list_json(section.entries)},
            {"raw_lines", list_json(section.raw_lines)}};
}

Json record_json(const gamess::ControlSection& control) {
    return {{"has_scftyp", control.has_scftyp},
            {"has_runtyp", control.has_runtyp},
            {"has_icharg", control.has_icharg},
            {"has_mult", control.has_mult},
            {"has_coord", control.has_coord},
            {"has_units", control.has_units},
            {"has_nosym", control.has_nosym},
            {"scftyp", control.scftyp},
            {"runtyp", control.runtyp},
            {"icharg", control.icharg},
            {"mult", control.mult},
            {"coord", control.coord},
            {"units", gamess::units_keyword(control.units)},
            {"nosym", control.nosym},
            {"maxit", optional_json(control.maxit)},
            {"ispher", optional_json(control.ispher)},
            {"exetyp", optional_json(control.exetyp)},
            {"dfttyp", optional_json(control.dfttyp)},
            {"cityp", optional_json(control.cityp)},
            {"tddft", optional_json(control.tddft)},
            {"relwfn", optional_json(control.relwfn)},
            {"pp", optional_json(control.pp)},
            {"extra", list_json(control.extra)}};
}

Json record_json(const gamess::SystemSection& system) {
    return {{"mwords", optional_json(system.mwords)},
            {"memddi", optional_json(system.memddi)},
            {"extra", list_json(system.extra)}};
}

Json record_json(const gamess::BasisSection& basis) {
    return {{"gbasis", optional_json(basis.gbasis)}, {"ngauss", optional_json(basis.ngauss)},
            {"ndfunc", optional_json(basis.ndfunc)}, {"npfunc", optional_json(basis.npfunc)},
            {"nffunc", optional_json(basis.nffunc)}, {"diffs", optional_json(basis.diffs)},
            {"diffsp", optional_json(basis.diffsp)}, {"extra", list_json(basis.extra)}};
}

Json record_json(const gamess::ScfSection& scf) {
    return {{"dirscf", optional_json(scf.dirscf)}, {"diis", optional_json(scf.diis)},
            {"soscf", optional_json(scf.soscf)},   {"fdiff", optional_json(scf.fdiff)},
            {"mom", optional_json(scf.mom)},       {"extra", list_json(scf.extra)}};
}

Json record_json(const gamess::GuessSection& guess) {
    return {{"guess", optional_json(guess.guess)},
            {"norb", optional_json(guess.norb)},
            {"extra", list_json(guess.extra)}};
}

template <class Record>
Json record_json(const std::optional<Record>& record) {
    return record ? record_json(*record) : Json();
}

void flatten_into(const Json& json, const std::string& path, std::string& out) {
    if (json.is_object()) {
        for (const auto& [name, member] : json.items()) {
            std::string member_path = path;
            if (!path.empty()) member_path += '.';
            member_path += name;
            flatten_into(member, member_path, out);
        }
    } else if (json.is_array() && !json.empty()) {
        for (std::size_t i = 0; i < json.size(); ++i) {
            flatten_into(json[i], path + '[' + std::to_string(i) + ']', out);
        }
    } else {
        out += path + " = " + json.dump(-1, ' ', true, Json::error_handler_t::replace) + '\n';
    }
}

}  // namespace

Json json_of(const gamess::GamessInput& input) {
    return {{"has_control", input.has_control},
            {"has_data", input.has_data},
            {"control", record_json(input.control)},
            {"system", record_json(input.system)},
            {"basis", record_json(input.basis)},
            {"scf", record_json(input.scf)},
            {"guess", record_json(input.guess)},
            {"extra_sections", list_json(input.extra_sections)},
            {"sections", list_json(input.sections)},
            {"title", input.title},
            {"point_group", input.point_group},
            {"atoms", list_json(input.atoms)},
            {"data_lines", list_json(input.data_lines)}};
}

std::string flatten(const Json& json) {
    std::string out;
    flatten_into(json, {}, out);
    return out;
}

}  // namespace gms_inp
