#include "typed_json.hpp"

#include <algorithm>
#include <stdexcept>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

#include "nurl/input/gamess/typed/fields.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;
namespace typed = nurl::input::gamess::typed;
using Json = nlohmann::ordered_json;

template <class Value>
Json value_json(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

template <class Value>
Json value_json(const std::vector<Value>& list) {
    return list;
}

/// Finds the member that a row of a record's table names.
template <class Record>
struct MemberJson {
    const Record& record;

    template <class Value>
    Json operator()(Value Record::*member) const {
        return value_json(record.*member);
    }
    template <class Kind>
    Json operator()(Kind kind) const {
        return value_json(record.*kind.member);
    }
};

std::string member_name(std::string_view keyword) {
    std::string name{keyword};
    std::ranges::transform(name, name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name;
}

template <class Record>
Json record_json(const Record& record) {
    Json json = Json::object();
    for (const auto& field : typed::detail::typed_fields<Record>)
        json[member_name(field.base())] = std::visit(MemberJson<Record>{record}, field.member);
    json["extra_entries"] = Json::array();
    for (const gamess::KeyValue& entry : record.extra_entries)
        json["extra_entries"].push_back({{"key", entry.key}, {"value", entry.value}});
    json["raw_lines"] = record.raw_lines;
    return json;
}

/// A group that has a record, and how the record of a document is shown.
struct TypedGroup {
    std::string_view name;
    std::optional<Json> (*json)(const gamess::GamessInput&);
};

template <class Record, auto Get>
constexpr TypedGroup typed_group() {
    return {typed::detail::group_of<Record>, [](const gamess::GamessInput& input) {
                const auto record = Get(input);
                return record ? std::optional{record_json(*record)} : std::nullopt;
            }};
}

constexpr auto typed_groups = std::to_array<TypedGroup>({
    typed_group<typed::TddftSection, typed::get_tddft_section>(),
    typed_group<typed::StatptSection, typed::get_statpt_section>(),
    typed_group<typed::ForceSection, typed::get_force_section>(),
    typed_group<typed::PcmSection, typed::get_pcm_section>(),
    typed_group<typed::FmoSection, typed::get_fmo_section>(),
    typed_group<typed::SurfSection, typed::get_surf_section>(),
    typed_group<typed::CcinpSection, typed::get_ccinp_section>(),
    typed_group<typed::EominpSection, typed::get_eominp_section>(),
    typed_group<typed::MdSection, typed::get_md_section>(),
    typed_group<typed::DftbSection, typed::get_dftb_section>(),
});

}  // namespace

std::optional<Json> typed_json(const gamess::GamessInput& input, std::string_view group) {
    const auto* const hit = std::ranges::find(typed_groups, group, &TypedGroup::name);
    if (hit != typed_groups.end()) return hit->json(input);
    std::string message = "no typed record for $" + std::string{group} + "; there is one for";
    for (const TypedGroup& known : typed_groups) message += " " + std::string{known.name};
    throw std::runtime_error(message);
}

}  // namespace gms_inp
