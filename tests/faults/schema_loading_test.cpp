#include <map>
#include <sstream>
#include <string>
#include <tuple>

#include <doctest/doctest.h>

#include "faults/fail_each.hpp"
#include "schema/loader.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess::schema;
using nurl::test::fail_each_allocation_of;
using nurl::test::TemporaryDirectory;

namespace {

constexpr const char* schema_text =
    "# A comment line that is longer than a string holds by itself\n"
    "sections:\n"
    "  a_group_with_a_long_name:\n"
    "    parse_mode: raw\n"
    "    alias_of: another_group_with_a_long_name\n"
    "  contrl:\n"
    "    allow_raw_lines: false\n"
    "    entries:\n"
    "      a_keyword_with_a_long_name:\n"
    "        kind: value\n"
    "        value_type: a_type_with_a_long_name\n"
    "        choices: [THE_FIRST_OF_THE_CHOICES, THE_SECOND_OF_THEM]\n"
    "      b:\n"
    "        kind: flag\n"
    "        indexed: true\n";

/// A table and the choices, by group and keyword.
using Loaded = std::pair<Table, std::map<std::pair<std::string, std::string>, std::string>>;

template <class Load>
Loaded loaded(const Load& load) {
    Loaded result;
    Choices choices;
    result.first = load(&choices);
    for (const auto& [group, description] : result.first)
        for (const auto& [keyword, entry] : description.entries)
            if (const auto hit = choices.find(&entry); hit != choices.end())
                result.second[{group, keyword}] = hit->second;
    return result;
}

}  // namespace

TEST_CASE("Reading a schema runs out of memory cleanly and is never cut short") {
    fail_each_allocation_of([] {
        std::istringstream stream(schema_text);
        return loaded([&stream](Choices* choices) { return read_schema(stream, choices); });
    });
}

TEST_CASE("Loading a schema file runs out of memory cleanly and is never cut short") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("a schema with a long name.yaml");
    nurl::test::make_file(path, schema_text);
    fail_each_allocation_of([&path] {
        return loaded([&path](Choices* choices) { return load_schema(path, choices); });
    });
}
