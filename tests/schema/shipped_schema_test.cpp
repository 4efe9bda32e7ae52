#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/core/text.hpp"
#include "schema/read_text.hpp"
#include "schema/schema_line.hpp"

using nurl::core::text::to_upper_copy;
using nurl::input::gamess::schema::EntryKind;
using nurl::input::gamess::schema::EntrySpec;
using nurl::input::gamess::schema::load_schema;
using nurl::input::gamess::schema::read_line;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::input::gamess::schema::Table;
using nurl::test::built_in_names;
using nurl::test::read_text;

namespace {

/// A line of the file that is neither blank nor a comment.
struct Line {
    int number;
    std::size_t depth;
    std::string text;
};

std::vector<Line> content_lines() {
    std::ifstream file(NURL_TEST_SHIPPED_SCHEMA);
    std::vector<Line> lines;
    int number = 0;
    for (std::string text; std::getline(file, text);) {
        ++number;
        const auto line = read_line(text);
        if (!line.text.empty()) lines.push_back({number, line.indentation, std::string{line.text}});
    }
    return lines;
}

std::string key_of(const Line& line) { return line.text.substr(0, line.text.find(':')); }

bool is_one_of(std::string_view word, const std::vector<std::string_view>& words) {
    return std::ranges::find(words, word) != words.end();
}

struct Group {
    const char* name;
    std::vector<const char*> keywords;
};

}  // namespace

TEST_CASE("The shipped schema lists every keyword that has a structured member") {
    const Table table = load_schema(NURL_TEST_SHIPPED_SCHEMA);
    const std::array<Group, 5> groups{{
        {"contrl",
         {"scftyp", "runtyp", "icharg", "mult", "coord", "units", "nosym", "maxit", "ispher",
          "exetyp", "dfttyp", "cityp", "tddft", "relwfn", "pp"}},
        {"system", {"mwords", "memddi"}},
        {"basis", {"gbasis", "ngauss", "ndfunc", "npfunc", "nffunc", "diffs", "diffsp"}},
        {"scf", {"dirscf", "diis", "soscf", "fdiff", "mom"}},
        {"guess", {"guess", "norb"}},
    }};
    for (const Group& group : groups) {
        CAPTURE(group.name);
        CHECK(table.at(group.name).parse_mode == SectionParseMode::Structured);
        for (const char* keyword : group.keywords) {
            CAPTURE(keyword);
            CHECK(table.at(group.name).entries.contains(keyword));
        }
    }
}

TEST_CASE("The shipped schema describes keywords of each type") {
    const Table table = load_schema(NURL_TEST_SHIPPED_SCHEMA);
    const auto keyword = [&table](const char* group, const char* name) {
        return table.at(group).entries.at(name);
    };
    CHECK(keyword("contrl", "scftyp") == EntrySpec{EntryKind::Value, "token", false, false});
    CHECK(keyword("contrl", "icharg") == EntrySpec{EntryKind::Value, "int", false, false});
    CHECK(keyword("scf", "dirscf") == EntrySpec{EntryKind::Flag, "logical", false, false});
    CHECK(keyword("system", "timlim") == EntrySpec{EntryKind::Value, "real", false, false});
    CHECK(keyword("guess", "iorder") == EntrySpec{EntryKind::Value, "int", true, true});
}

TEST_CASE("The shipped schema leaves the built-in groups as they are but for keywords") {
    Table shipped = load_schema(NURL_TEST_SHIPPED_SCHEMA);
    const Table built_in = read_text("");
    for (const std::string& name : built_in_names) {
        CAPTURE(name);
        shipped.at(name).entries.clear();
        CHECK(shipped.at(name) == built_in.at(name));
    }
}

TEST_CASE("Every alias of the shipped schema leads to another group of it") {
    const Table table = load_schema(NURL_TEST_SHIPPED_SCHEMA);
    for (const auto& row : table) {
        CAPTURE(row.first);
        const std::string& target = row.second.alias_of;
        CHECK(target != row.first);
        CHECK((target.empty() || table.contains(target)));
    }
}

TEST_CASE("Every line of the shipped schema is one that its head explains") {
    const std::vector<std::string_view> group_keys{"parse_mode",      "alias_of",
                                                   "requires_end",    "allow_unknown_entries",
                                                   "allow_raw_lines", "entries"};
    const std::vector<std::string_view> keyword_keys{"kind",     "value_type", "indexed",
                                                     "repeated", "choices",    "default"};
    const std::vector<Line> lines = content_lines();
    REQUIRE(lines.size() > 400);
    CHECK(lines.front().text == "sections:");
    std::size_t depth_before = 0;
    for (const Line& line : lines) {
        CAPTURE(line.number);
        CAPTURE(line.text);
        CHECK(is_one_of(line.depth == 0 ? line.text : "", {"sections:", ""}));
        CHECK(line.depth % 2 == 0);
        CHECK(line.depth <= std::min<std::size_t>(depth_before + 2, 8));
        if (line.depth == 2 || line.depth == 6) CHECK(line.text.ends_with(':'));
        if (line.depth == 4) CHECK(is_one_of(key_of(line), group_keys));
        if (line.depth == 8) CHECK(is_one_of(key_of(line), keyword_keys));
        depth_before = line.depth;
    }
}

TEST_CASE("Names of the shipped schema stand once and in upper case and keywords sorted") {
    std::vector<std::string> groups;
    std::string keyword_before;
    for (const Line& line : content_lines()) {
        CAPTURE(line.number);
        // A `$` in front keeps a name from being a logical word of YAML; it is no part of the name.
        std::string name = key_of(line);
        if (name.starts_with('$')) name.erase(0, 1);
        if (line.depth == 2) {
            CHECK(name == to_upper_copy(name));
            CHECK(std::ranges::find(groups, name) == groups.end());
            groups.push_back(name);
            keyword_before.clear();
        }
        if (line.depth == 6) {
            CHECK(name == to_upper_copy(name));
            CHECK(keyword_before < name);
            keyword_before = name;
        }
    }
}

TEST_CASE("The shipped schema uses only the words that its head explains") {
    for (const auto& group : load_schema(NURL_TEST_SHIPPED_SCHEMA)) {
        for (const auto& keyword : group.second.entries) {
            CAPTURE(group.first);
            CAPTURE(keyword.first);
            const EntrySpec& entry = keyword.second;
            CHECK(entry.kind != EntryKind::Unspecified);
            CHECK(is_one_of(entry.value_type, {"int", "real", "logical", "token", "text"}));
            CHECK((entry.kind == EntryKind::Flag) == (entry.value_type == "logical"));
        }
    }
    for (const Line& line : content_lines()) {
        CAPTURE(line.number);
        const std::string value = line.text.substr(line.text.find(':') + 1);
        if (key_of(line) == "kind") CHECK(is_one_of(value, {" value", " flag"}));
        if (key_of(line) == "parse_mode")
            CHECK(is_one_of(value, {" structured", " keywords", " raw"}));
    }
}
