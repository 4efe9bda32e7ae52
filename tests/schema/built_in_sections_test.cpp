#include <cstdint>
#include <string>
#include <type_traits>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"

using nurl::input::gamess::schema::EntryKind;
using nurl::input::gamess::schema::EntrySpec;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::input::gamess::schema::SectionSpec;
using nurl::input::gamess::schema::Table;
using nurl::test::built_in_names;
using nurl::test::names_of;
using nurl::test::read_text;

static_assert(std::is_same_v<std::underlying_type_t<SectionParseMode>, std::int32_t>);
static_assert(static_cast<int>(SectionParseMode::Structured) == 0);
static_assert(static_cast<int>(SectionParseMode::Keywords) == 1);
static_assert(static_cast<int>(SectionParseMode::Raw) == 2);
static_assert(std::is_same_v<std::underlying_type_t<EntryKind>, std::int32_t>);
static_assert(static_cast<int>(EntryKind::Unspecified) == 0);
static_assert(static_cast<int>(EntryKind::Value) == 1);
static_assert(static_cast<int>(EntryKind::Flag) == 2);
static_assert(std::is_aggregate_v<SectionSpec> && std::is_aggregate_v<EntrySpec>);

TEST_CASE("A group that nothing is known of tolerates everything in keyword mode") {
    const SectionSpec spec;
    CHECK_FALSE(spec.known);
    CHECK(spec.requires_end);
    CHECK(spec.allow_unknown_entries);
    CHECK(spec.allow_raw_lines);
    CHECK(spec.parse_mode == SectionParseMode::Keywords);
    CHECK(spec.alias_of.empty());
    CHECK(spec.entries.empty());
}

TEST_CASE("A keyword that nothing is known of is a token of no certain kind") {
    const EntrySpec spec;
    CHECK(spec.kind == EntryKind::Unspecified);
    CHECK(spec.value_type == "token");
    CHECK_FALSE(spec.indexed);
    CHECK_FALSE(spec.repeated);
}

TEST_CASE("The members of the records stand in the order that aggregates rely on") {
    const SectionSpec group{true, false, false, false, SectionParseMode::Raw, "data", {}};
    CHECK(group.known);
    CHECK_FALSE(group.requires_end);
    CHECK_FALSE(group.allow_unknown_entries);
    CHECK_FALSE(group.allow_raw_lines);
    CHECK(group.parse_mode == SectionParseMode::Raw);
    CHECK(group.alias_of == "data");
    const EntrySpec keyword{EntryKind::Flag, "logical", true, false};
    CHECK(keyword.kind == EntryKind::Flag);
    CHECK(keyword.value_type == "logical");
    CHECK(keyword.indexed);
    CHECK_FALSE(keyword.repeated);
}

TEST_CASE("An empty schema text gives exactly the built-in groups") {
    const Table table = read_text("");
    CHECK(table.size() == 23);
    CHECK(names_of(table) == built_in_names);
    CHECK(table.max_load_factor() == 1.0F);
}

TEST_CASE("Five built-in groups are structured and the other eighteen are raw") {
    const Table table = read_text("");
    for (const char* name : {"contrl", "system", "basis", "scf", "guess"}) {
        CAPTURE(name);
        CHECK(table.at(name).parse_mode == SectionParseMode::Structured);
    }
    for (const char* name :
         {"data", "datas", "datal", "vec", "cisvec", "hess", "grad", "dipdr", "alpdr", "vib",
          "vib2", "vibscf", "eqgeom", "hlowt", "glowt", "dftbsk", "dftbao", "dm"}) {
        CAPTURE(name);
        CHECK(table.at(name).parse_mode == SectionParseMode::Raw);
    }
}

TEST_CASE("Built-in groups are known and tolerate everything and list no keywords") {
    const Table table = read_text("");
    for (const std::string& name : built_in_names) {
        CAPTURE(name);
        const SectionSpec& spec = table.at(name);
        CHECK(spec.known);
        CHECK(spec.requires_end);
        CHECK(spec.allow_unknown_entries);
        CHECK(spec.allow_raw_lines);
        CHECK(spec.alias_of.empty());
        CHECK(spec.entries.empty());
    }
}

TEST_CASE("Every group that a schema text names is known") {
    const Table table = read_text(
        "sections:\n"
        "  pcm:\n"
        "    known: no\n"
        "  data:\n");
    CHECK(table.size() == 24);
    CHECK(table.at("pcm").known);
    CHECK(table.at("data").known);
}
