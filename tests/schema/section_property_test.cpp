#include <array>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"

using nurl::input::gamess::schema::EntrySpec;
using nurl::input::gamess::schema::SectionParseMode;
using nurl::input::gamess::schema::SectionSpec;
using nurl::test::names_of;
using nurl::test::read_text;

namespace {

using Names = std::vector<std::string>;

/// The group `a` whose properties are the given lines, each without its four spaces.
SectionSpec group_with(const std::vector<std::string>& properties) {
    std::string text = "sections:\n  a:\n";
    for (const std::string& property : properties) text += "    " + property + '\n';
    return read_text(text).at("a");
}

struct Permission {
    const char* key;
    bool SectionSpec::*flag;
};

constexpr std::array<Permission, 3> permissions{{
    {"requires_end", &SectionSpec::requires_end},
    {"allow_unknown_entries", &SectionSpec::allow_unknown_entries},
    {"allow_raw_lines", &SectionSpec::allow_raw_lines},
}};

struct Alias {
    const char* written;
    const char* stored;
};

SectionParseMode mode_of(const std::string& property) {
    return group_with({"parse_mode: raw", property}).parse_mode;
}

std::string alias_of(const std::string& property) {
    return group_with({"alias_of: before", property}).alias_of;
}

}  // namespace

TEST_CASE("A false word takes one permission away") {
    for (const Permission& permission : permissions) {
        for (const char* word : {"false", "no", "off", "0", "FALSE", "No", "oFF", "'no'", "\"off\"",
                                 "$false", "' no '", "  no\t", "no # not here"}) {
            CAPTURE(permission.key);
            CAPTURE(word);
            SectionSpec expected;
            expected.known = true;
            expected.*permission.flag = false;
            CHECK(group_with({std::string{permission.key} + ": " + word}) == expected);
        }
    }
}

TEST_CASE("A true word or no logical word gives a permission back") {
    for (const Permission& permission : permissions) {
        const std::string key = permission.key;
        for (const char* word : {"true", "yes", "on", "1", "TRUE", "maybe", "", "''", "2", "00",
                                 "f", "n", ".F.", "no no", "'no", "no'", "-", "no:", "nope"}) {
            CAPTURE(key);
            CAPTURE(word);
            CHECK(group_with({key + ": no", key + ": " + word}).*permission.flag);
        }
    }
}

TEST_CASE("The parse mode is one of three words in any case and quoted or not") {
    for (const char* word :
         {"raw", "RAW", "'raw'", "\"Raw\"", "' raw '", "$raw", "'$raw'", "raw # text"}) {
        CAPTURE(word);
        CHECK(group_with({"parse_mode: " + std::string{word}}).parse_mode == SectionParseMode::Raw);
    }
    for (const char* word : {"structured", "Structured", "'STRUCTURED'", "$structured"}) {
        CAPTURE(word);
        CHECK(mode_of("parse_mode: " + std::string{word}) == SectionParseMode::Structured);
    }
    CHECK(mode_of("parse_mode: keywords") == SectionParseMode::Keywords);
}

TEST_CASE("A word that is no parse mode stands for keywords") {
    for (const char* word : {"free", "", "''", "raws", "ra", "raw raw", "raw: yes", "'raw", "raw\"",
                             "2", "''raw''", "$$raw", "$ raw"}) {
        CAPTURE(word);
        CHECK(mode_of("parse_mode: " + std::string{word}) == SectionParseMode::Keywords);
    }
    CHECK(read_text("sections:\n  data:\n    parse_mode:\n").at("data").parse_mode ==
          SectionParseMode::Keywords);
}

TEST_CASE("An alias is stored in lower case without one dollar sign and quotes") {
    const std::array<Alias, 13> rows{{
        {"$contrl", "contrl"},
        {" CONTRL ", "contrl"},
        {"'$Contrl'", "contrl"},
        {"\" $contrl \"", "contrl"},
        {"$$X", "$x"},
        {"$ x", " x"},
        {"a(1)", "a(1)"},
        {"a:b", "a:b"},
        {"''a''", "'a'"},
        {"'a\"", "'a\""},
        {"'", "'"},
        {"$", ""},
        {"", ""},
    }};
    for (const Alias& row : rows) {
        CAPTURE(row.written);
        CHECK(alias_of("alias_of: " + std::string{row.written}) == row.stored);
    }
    CHECK(alias_of("alias_of: ''").empty());
    CHECK(alias_of("alias_of: \"\"").empty());
}

TEST_CASE("Property names are read in any case and with a dollar sign and blanks") {
    for (const char* key :
         {"parse_mode", "PARSE_MODE", "Parse_Mode", "$parse_mode", "parse_mode ", "parse_mode\t"}) {
        CAPTURE(key);
        CHECK(mode_of(std::string{key} + ": structured") == SectionParseMode::Structured);
        CHECK(mode_of(std::string{key} + ":structured") == SectionParseMode::Structured);
    }
}

TEST_CASE("Other property names are ignored") {
    SectionSpec expected;
    expected.known = true;
    for (const char* property :
         {"known: no", "parse-mode: raw", "parse mode: raw", "parse_modes: raw", "parse_mod: raw",
          "'parse_mode': raw", "$$parse_mode: raw", ": raw", ":", "- parse_mode: raw", "kind: flag",
          "alias: data", "allow_raw_line: no", "Entries:", "entries: yes"}) {
        CAPTURE(property);
        CHECK(group_with({property}) == expected);
    }
}

TEST_CASE("The last of several equal properties counts") {
    CHECK(group_with({"alias_of: b", "alias_of: c"}).alias_of == "c");
    CHECK_FALSE(group_with({"requires_end: yes", "requires_end: no"}).requires_end);
}

TEST_CASE("Only the exact word opens the keyword list of a group") {
    for (const char* line :
         {"entries:", "entries: ", "entries: # all", "entries:\t", "\tentries:"}) {
        CAPTURE(line);
        CHECK(group_with({line, "  x:"}).entries.contains("x"));
    }
    for (const char* line : {"Entries:", "ENTRIES:", "entries", "entries :", "entries: yes",
                             "$entries:", "'entries:'", "entries::"}) {
        CAPTURE(line);
        CHECK(group_with({line, "  x:"}).entries.empty());
    }
}

TEST_CASE("Any other line at the depth of properties ends the keyword list") {
    for (const char* line :
         {"requires_end: yes", "unknown: 1", "no colon", "- item", "Entries:", "'", ":"}) {
        CAPTURE(line);
        const SectionSpec group =
            group_with({"entries:", "  x:", line, "  y:", "    kind: flag", "  z:"});
        CHECK(names_of(group.entries) == Names{"x"});
        CHECK(group.entries.at("x") == EntrySpec{});
    }
}

TEST_CASE("The keyword list of a group may be opened again") {
    const SectionSpec group = group_with(
        {"entries:", "  x:", "    kind: flag", "parse_mode: raw", "  y:", "entries:", "  z:"});
    CHECK(names_of(group.entries) == Names{"x", "z"});
    CHECK(group.entries.at("x").kind == nurl::input::gamess::schema::EntryKind::Flag);
}

TEST_CASE("Opening the keyword list again ends the current keyword") {
    const SectionSpec group = group_with({"entries:", "  x:", "entries:", "    kind: flag"});
    CHECK(group.entries.at("x") == EntrySpec{});
}
