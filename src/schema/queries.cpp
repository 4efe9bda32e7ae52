#include <algorithm>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "schema/table.hpp"

namespace nurl::input::gamess::schema {

namespace {

const SectionSpec* look_up(const Table& table, std::string_view name) {
    const auto hit = table.find(normalize_section_name(name));
    return hit == table.end() ? nullptr : &hit->second;
}

}  // namespace

std::string normalize_section_name(std::string_view name) {
    return core::text::to_lower_copy(detail::without_dollar(detail::trim_view(name)));
}

std::string normalize_entry_name(std::string_view name) {
    const std::string_view entry = detail::without_dollar(detail::trim_view(name));
    return core::text::to_lower_copy(detail::trim_view(detail::without_index(entry)));
}

const SectionSpec* find_section(std::string_view section) {
    constexpr int alias_steps = 17;
    const Table& table = schema_table();
    const SectionSpec* spec = look_up(table, section);
    for (int step = 0; step < alias_steps && spec != nullptr && !spec->alias_of.empty(); ++step) {
        const SectionSpec* const target = look_up(table, spec->alias_of);
        if (target == nullptr || target == spec) break;
        spec = target;
    }
    return spec;
}

const EntrySpec* find_entry(std::string_view section, std::string_view entry) {
    const SectionSpec* const spec = find_section(section);
    if (spec == nullptr) return nullptr;
    const auto hit = spec->entries.find(normalize_entry_name(entry));
    return hit == spec->entries.end() ? nullptr : &hit->second;
}

bool section_allows_raw_lines(std::string_view section) {
    const SectionSpec* const spec = find_section(section);
    return spec == nullptr || spec->allow_raw_lines;
}

SectionParseMode section_parse_mode(std::string_view section) {
    const SectionSpec* const spec = find_section(section);
    return spec == nullptr ? SectionParseMode::Keywords : spec->parse_mode;
}

bool section_allows_unknown_entries(std::string_view section) {
    const SectionSpec* const spec = find_section(section);
    return spec == nullptr || spec->allow_unknown_entries;
}

std::vector<std::string> section_names() {
    const Table& table = schema_table();
    std::vector<std::string> names;
    names.reserve(table.size());
    for (const auto& [name, spec] : table) names.push_back(name);
    std::ranges::sort(names);
    return names;
}

}  // namespace nurl::input::gamess::schema
