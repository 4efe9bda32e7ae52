#include "schema/schema_line.hpp"

#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

using namespace std::string_literals;

using nurl::input::gamess::schema::is_word;
using nurl::input::gamess::schema::read_flag;
using nurl::input::gamess::schema::read_line;
using nurl::input::gamess::schema::read_property;

namespace {

struct CommentRow {
    std::string_view line;
    std::string_view text;
};

struct DepthRow {
    std::string_view line;
    std::size_t indentation;
};

}  // namespace

TEST_CASE("A comment goes from a hash sign outside quotes to the end of the line") {
    const std::array<CommentRow, 16> rows{{
        {"key: value", "key: value"},
        {"key: value # note", "key: value"},
        {"key: value#note", "key: value"},
        {"# note", ""},
        {"#", ""},
        {"a # b # c", "a"},
        {"'a#b' # c", "'a#b'"},
        {"\"a#b\" # c", "\"a#b\""},
        {"'a\"#b' # c", "'a\"#b'"},
        {"\"a'#b\" # c", "\"a'#b\""},
        {"'a' # 'b'", "'a'"},
        {"it's # kept", "it's # kept"},
        {"5\" # kept", "5\" # kept"},
        {"it's # kept' # gone", "it's # kept'"},
        {"'a'b#c", "'a'b"},
        {"\\'a#b", "\\'a#b"},
    }};
    for (const CommentRow& row : rows) {
        CAPTURE(row.line);
        CHECK(read_line(row.line).text == row.text);
    }
}

TEST_CASE("The text of a line has no white space at its ends") {
    CHECK(read_line("").text.empty());
    CHECK(read_line(" \t\n\v\f\r ").text.empty());
    CHECK(read_line("  \t a b \t\v\f\r").text == "a b");
    CHECK(read_line("\xA0 a \xA0").text == "\xA0 a \xA0");
    CHECK(read_line(" \0 "s).text == "\0"s);
}

TEST_CASE("The indentation of a line is the number of spaces at its start") {
    const std::array<DepthRow, 8> rows{{
        {"a", 0},
        {" a", 1},
        {"  a", 2},
        {"        a b", 8},
        {"\ta", 0},
        {"  \t  a", 2},
        {"\v a", 0},
        {"  \r  a", 2},
    }};
    for (const DepthRow& row : rows) {
        CAPTURE(row.line);
        CHECK(read_line(row.line).indentation == row.indentation);
    }
}

TEST_CASE("A property is split at its first colon and its value is unquoted") {
    const auto property = read_property("a b : 'c: d'");
    REQUIRE(property);
    CHECK(is_word(property->key, "a b"));
    CHECK(property->value == "c: d");
    CHECK(read_property("a:")->value.empty());
    CHECK(read_property(":")->value.empty());
    CHECK(read_property("a:\t\"b\" ")->value == "b");
    CHECK(read_property("a: ''b''")->value == "'b'");
    CHECK(read_property("a: 'b\"")->value == "'b\"");
    CHECK(read_property("a: '")->value == "'");
    CHECK(read_property("a: ' b '")->value == " b ");
    CHECK(read_property("a: 'b' c")->value == "'b' c");
    CHECK(read_property("a: `b`")->value == "`b`");
    CHECK_FALSE(read_property("a b"));
    CHECK_FALSE(read_property(""));
}

TEST_CASE("A logical word is one of eight and anything else leaves the default") {
    for (const char* word : {"true", "yes", "on", "1", "TRUE", " $Yes "}) {
        CAPTURE(word);
        CHECK(read_flag(word, false));
        CHECK(read_flag(word, true));
    }
    for (const char* word : {"false", "no", "off", "0", "OFF", " $No "}) {
        CAPTURE(word);
        CHECK_FALSE(read_flag(word, false));
        CHECK_FALSE(read_flag(word, true));
    }
    for (const char* word : {"", "maybe", "tru", "truee", "10", "$$yes", "'yes'", ".TRUE."}) {
        CAPTURE(word);
        CHECK_FALSE(read_flag(word, false));
        CHECK(read_flag(word, true));
    }
}

TEST_CASE("Words are compared trimmed and without one dollar sign and letter case") {
    CHECK(is_word(" $Raw\t", "raw"));
    CHECK(is_word("", ""));
    CHECK(is_word("$", ""));
    CHECK_FALSE(is_word("$$raw", "raw"));
    CHECK_FALSE(is_word("$ raw", "raw"));
    CHECK_FALSE(is_word("rawx", "raw"));
    CHECK_FALSE(is_word("ra", "raw"));
    CHECK_FALSE(is_word("raw\0"s, "raw"));
}
