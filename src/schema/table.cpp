#include "schema/table.hpp"

#include "nurl/core/resource.hpp"
#include "schema/schema_line.hpp"

namespace nurl::input::gamess::schema {

namespace {

constexpr const char* path_variable = "NURL_GMS_INP_SCHEMA_YAML";

/// What one pass over the file gives.
struct Loaded {
    Choices choices;
    Table table = load_schema(resolve_schema_path(""), &choices);
};

const Loaded& loaded() {
    static const Loaded schema;
    return schema;
}

}  // namespace

std::string resolve_schema_path(const std::string& explicit_path) {
    constexpr int parent_levels = 6;
    const std::string resources = "resources/schemas/input/gamess.yaml";
    const std::string installed = "share/nurllib/schemas/input/gamess.yaml";
    return core::resource::search_file(path_variable, {resources, installed, resources, installed},
                                       explicit_path, {}, parent_levels);
}

const Table& schema_table() { return loaded().table; }

std::vector<std::string_view> choices_of(const EntrySpec* entry) {
    const Choices& choices = loaded().choices;
    const auto hit = choices.find(entry);
    if (hit == choices.end()) return {};
    return read_list(hit->second);
}

}  // namespace nurl::input::gamess::schema
