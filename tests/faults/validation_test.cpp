#include "nurl/input/gamess/validation.hpp"

#include <sstream>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/schema.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of;

TEST_CASE("Validating a document runs out of memory cleanly") {
    for (const auto& deck : nurl::test::decks_to_read) {
        CAPTURE(deck.name);
        const GamessInput document = parse_string(deck.text).input;
        fail_each_allocation_of([&document] { return validation::validate(document, {}); });
    }
}

TEST_CASE("Validating a group runs out of memory cleanly") {
    const std::vector<NamedSection> groups{
        {"a group that nobody knows", {}, {}},
        {"PCM", {{"A-KEYWORD-THAT-NOBODY-KNOWS", "1"}}, {"another_unknown_keyword = 2"}},
        {"SCF", {}, {"free text in a structured group", "! a comment of some length"}},
    };
    for (const NamedSection& group : groups) {
        CAPTURE(group.name);
        REQUIRE_FALSE(validation::validate_section(group, {}).empty());
        fail_each_allocation_of([&group] { return validation::validate_section(group, {}); });
    }
}

TEST_CASE("Queries of the schema run out of memory cleanly") {
    const std::string group = "  $a-group-that-nobody-knows";
    const std::string keyword = " A-KEYWORD-THAT-NOBODY-KNOWS(1) ";
    fail_each_allocation_of([&] { return schema::find_section(group); });
    fail_each_allocation_of([&] { return schema::find_section("$CONTRL             "); });
    fail_each_allocation_of([&] { return schema::find_entry("CONTRL", keyword); });
    fail_each_allocation_of([&] { return schema::find_entry(group, keyword); });
    fail_each_allocation_of([&] { return schema::section_allows_raw_lines(group); });
    fail_each_allocation_of([&] { return schema::section_parse_mode(group); });
    fail_each_allocation_of([&] { return schema::section_allows_unknown_entries(group); });
    fail_each_allocation_of([&] { return schema::normalize_section_name(group); });
    fail_each_allocation_of([&] { return schema::normalize_entry_name(keyword); });
    fail_each_allocation_of([] { return schema::section_names(); });
}

TEST_CASE("The search for the schema file runs out of memory cleanly") {
    for (const char* path : {"", "a file that is not there.yaml"}) {
        CAPTURE(path);
        fail_each_allocation_of([path] { return schema::resolve_schema_path(path); });
    }
}
