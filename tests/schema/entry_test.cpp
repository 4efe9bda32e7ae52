#include <array>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"

using nurl::input::gamess::schema::EntryKind;
using nurl::input::gamess::schema::EntrySpec;
using nurl::input::gamess::schema::SectionSpec;
using nurl::input::gamess::schema::Table;
using nurl::test::names_of;
using nurl::test::read_text;

namespace {

using Names = std::vector<std::string>;
using Entries = decltype(SectionSpec::entries);

/// The keywords of a group whose list holds the given lines, each without its six spaces.
Entries keywords(const std::vector<std::string>& lines) {
    std::string text = "sections:\n  a:\n    entries:\n";
    for (const std::string& line : lines) text += "      " + line + '\n';
    return read_text(text).at("a").entries;
}

/// The keyword `x` with the given properties.
EntrySpec keyword_with(const std::vector<std::string>& properties) {
    std::vector<std::string> lines{"x:"};
    for (const std::string& property : properties) lines.push_back("  " + property);
    return keywords(lines).at("x");
}

struct Row {
    const char* written;
    const char* stored;
};

struct Flag {
    const char* key;
    bool EntrySpec::*member;
};

constexpr std::array<Flag, 2> flags{{
    {"indexed", &EntrySpec::indexed},
    {"repeated", &EntrySpec::repeated},
}};

}  // namespace

TEST_CASE("A keyword that is only named has the default properties") {
    CHECK(keywords({"x:"}) == Entries{{"x", EntrySpec{}}});
}

TEST_CASE("A keyword in front of the keyword list of its group is ignored") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "      x:\n"
        "        kind: flag\n"
        "    entries:\n"
        "      y:\n");
    CHECK(names_of(table.at("a").entries) == Names{"y"});
}

TEST_CASE("Keywords are stored in lower case without dollar sign and index") {
    const std::array<Row, 13> rows{{
        {"SCFTYP:", "scftyp"},
        {"\tScfTyp\t:", "scftyp"},
        {"$SCFTYP :", "scftyp"},
        {"C(1):", "c"},
        {"ZMAT (2) :", "zmat"},
        {"X(1)Y:", "x(1)y"},
        {"A B(3):", "a b"},
        {"a)b(c):", "a)b"},
        {"a(b(c):", "a"},
        {"a):", "a)"},
        {"a(:", "a("},
        {"'x':", "'x'"},
        {"a:b:", "a:b"},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.written);
        CHECK(names_of(keywords({row.written})) == Names{row.stored});
    }
}

TEST_CASE("A repeated keyword starts again from the default properties") {
    const Entries entries = keywords({"x:", "  kind: flag", "  value_type: int", "  indexed: yes",
                                      "  repeated: yes", "X(2):", "  repeated: yes"});
    CHECK(entries == Entries{{"x", EntrySpec{EntryKind::Unspecified, "token", false, true}}});
}

TEST_CASE("A line at the depth of keywords without a colon at its end is skipped") {
    const Entries entries = keywords({"x:", "y", "z: value", "- w", "  kind: flag"});
    CHECK(entries == Entries{{"x", EntrySpec{EntryKind::Flag, "token", false, false}}});
}

TEST_CASE("A keyword whose name normalises to nothing is stored and takes no properties") {
    for (const char* header : {"(1):", "$:", ":", "$ :", "$(2):", "()  :"}) {
        CAPTURE(header);
        const Entries entries = keywords({"x:", header, "  kind: flag", "  indexed: yes"});
        CHECK(entries == Entries{{"x", EntrySpec{}}, {"", EntrySpec{}}});
    }
}

TEST_CASE("Every property of a keyword is read") {
    CHECK(keyword_with({"kind: value", "value_type: int", "indexed: yes", "repeated: on"}) ==
          EntrySpec{EntryKind::Value, "int", true, true});
}

TEST_CASE("The kind of a keyword is one of two words") {
    for (const char* word : {"value", "VALUE", "'value'", "$Value", "\" value \"", "value # v"}) {
        CAPTURE(word);
        CHECK(keyword_with({"kind: " + std::string{word}}).kind == EntryKind::Value);
    }
    for (const char* word : {"flag", "Flag", "\"FLAG\"", "'$flag'"}) {
        CAPTURE(word);
        CHECK(keyword_with({"kind: " + std::string{word}}).kind == EntryKind::Flag);
    }
    for (const char* word : {"", "''", "switch", "values", "1", "value: 2", "flag flag", "'flag"}) {
        CAPTURE(word);
        CHECK(keyword_with({"kind: flag", "kind: " + std::string{word}}).kind ==
              EntryKind::Unspecified);
    }
}

TEST_CASE("The value type is any text in lower case and without quotes") {
    const std::array<Row, 11> rows{{
        {"int", "int"},
        {"INT", "int"},
        {"\"token\"", "token"},
        {"'Real'", "real"},
        {"'a#b'", "a#b"},
        {"' two words '", "two words"},
        {"$text", "text"},
        {"a: b", "a: b"},
        {"\"'x'\"", "'x'"},
        {"", ""},
        {"''", ""},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.written);
        CHECK(keyword_with({"value_type: " + std::string{row.written}}).value_type == row.stored);
    }
}

TEST_CASE("The logical properties of a keyword are false unless a true word stands there") {
    for (const Flag& flag : flags) {
        const std::string property = flag.key;
        CAPTURE(property);
        for (const char* word :
             {"true", "yes", "on", "1", "TRUE", "Yes", "'on'", "\"1\"", "$true", "' yes '"}) {
            CAPTURE(word);
            CHECK(keyword_with({property + ": " + word}).*flag.member);
        }
        for (const char* word : {"false", "no", "off", "0", "maybe", "", "''", "2", "01", "t", "y",
                                 ".T.", "yes yes", "'yes", "yes:"}) {
            CAPTURE(word);
            CHECK_FALSE(keyword_with({property + ": yes", property + ": " + word}).*flag.member);
        }
    }
}

TEST_CASE("Property names of a keyword are read in any case") {
    CHECK(keyword_with({"KIND: flag", "Value_Type : int", "$indexed: 1", "REPEATED:yes"}) ==
          EntrySpec{EntryKind::Flag, "int", true, true});
}

TEST_CASE("Other lines at the depth of keyword properties are ignored") {
    const Entries entries = keywords({"x:", "  alias_of: y", "  entries:", "  parse_mode: raw",
                                      "  no colon", "  'kind': flag", "  : flag", "  kind flag",
                                      "  - kind: flag", "  y:", "  indexed: yes"});
    CHECK(entries == Entries{{"x", EntrySpec{EntryKind::Unspecified, "token", true, false}}});
}

TEST_CASE("Properties in front of the first keyword are skipped") {
    CHECK(keywords({"  kind: flag", "x:"}) == Entries{{"x", EntrySpec{}}});
}

TEST_CASE("A property belongs to the keyword above it in the same group") {
    const Table table = read_text(
        "sections:\n"
        "  a:\n"
        "    entries:\n"
        "      x:\n"
        "        kind: flag\n"
        "      y:\n"
        "        kind: value\n"
        "  b:\n"
        "    entries:\n"
        "        kind: flag\n"
        "      x:\n");
    CHECK(table.at("a").entries.at("x").kind == EntryKind::Flag);
    CHECK(table.at("a").entries.at("y").kind == EntryKind::Value);
    CHECK(table.at("b").entries == Entries{{"x", EntrySpec{}}});
}
