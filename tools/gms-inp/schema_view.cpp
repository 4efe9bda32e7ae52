#include "schema_view.hpp"

#include <algorithm>
#include <map>
#include <utility>

#include "ascii.hpp"
#include "diagnostics.hpp"

namespace gms_inp {

namespace {

namespace schema = nurl::input::gamess::schema;

/// The names of the schema by the description they lead to.
using NamesBySpec = std::map<const schema::SectionSpec*, std::vector<std::string>>;

NamesBySpec names_by_spec() {
    NamesBySpec names;
    for (const std::string& name : schema::section_names()) {
        names[schema::find_section(name)].push_back(to_upper(name));
    }
    return names;
}

std::vector<KeywordView> sorted_keywords(const schema::SectionSpec& section) {
    std::vector<KeywordView> keywords;
    for (const auto& [name, entry] : section.entries) keywords.push_back({to_upper(name), entry});
    std::ranges::sort(keywords, {}, &KeywordView::name);
    return keywords;
}

GroupView view_of(const std::string& name, const NamesBySpec& names) {
    const schema::SectionSpec* const section = schema::find_section(name);
    GroupView view{.name = to_upper(name),
                   .section = section,
                   .same_as = names.at(section),
                   .keywords = sorted_keywords(*section)};
    std::erase(view.same_as, view.name);
    return view;
}

}  // namespace

std::vector<GroupView> groups_of_schema() {
    const NamesBySpec names = names_by_spec();
    std::vector<GroupView> groups;
    for (const std::string& name : schema::section_names()) groups.push_back(view_of(name, names));
    return groups;
}

std::optional<GroupView> group_of_schema(std::string_view name) {
    if (schema::find_section(name) == nullptr) return std::nullopt;
    return view_of(schema::normalize_section_name(name), names_by_spec());
}

void warn_of_empty_schema() {
    const std::vector<std::string> names = schema::section_names();
    const bool lists_keywords = std::ranges::any_of(names, [](const std::string& name) {
        return !schema::find_section(name)->entries.empty();
    });
    if (lists_keywords) return;
    complain(
        {.place = "gms-inp",
         .weight = Weight::Warning,
         .message = "the schema lists no keywords, so none is known; --schema names its file"});
}

std::string_view text_of(schema::SectionParseMode mode) noexcept {
    using schema::SectionParseMode;
    if (mode == SectionParseMode::Structured) return "structured";
    return mode == SectionParseMode::Raw ? "raw" : "keywords";
}

std::string_view text_of(schema::EntryKind kind) noexcept {
    using schema::EntryKind;
    if (kind == EntryKind::Value) return "value";
    return kind == EntryKind::Flag ? "flag" : "unspecified";
}

}  // namespace gms_inp
