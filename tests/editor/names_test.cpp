#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "editor/editor_names.hpp"

using nurl::input::gamess::detail::editor_dollar_name;
using nurl::input::gamess::detail::editor_key_name;
using nurl::input::gamess::detail::editor_section_name;
using nurl::input::gamess::detail::editor_trim;
using nurl::input::gamess::detail::is_editor_blank;
using nurl::input::gamess::detail::is_editor_section;
using nurl::input::gamess::detail::same_editor_key;

namespace {

struct NameCase {
    const char* shown;         ///< what the row is about
    std::string_view name;     ///< as somebody may spell it
    std::string_view section;  ///< as a group name
    std::string_view dollar;   ///< as a group name in a header
    std::string_view key;      ///< as a keyword
};

constexpr std::array<NameCase, 16> name_cases{{
    {"lower case", "scf", "SCF", "$SCF", "SCF"},
    {"dollar", "$Scf", "SCF", "$SCF", "$SCF"},
    {"four kinds of blanks", " \t\n\rscf\r\n\t ", "SCF", "$SCF", "SCF"},
    {"blanks and dollar", "  $scf ", "SCF", "$SCF", "$SCF"},
    {"vertical tab", "\vscf\v", "\vSCF\v", "$\vSCF\v", "\vSCF\v"},
    {"form feed", " \fscf\f ", "\fSCF\f", "$\fSCF\f", "\fSCF\f"},
    {"only a vertical tab", "\v", "\v", "$\v", "\v"},
    {"two dollars", "$$x", "$X", "$$X", "$$X"},
    {"only two dollars", "$$", "$", "$$", "$$"},
    {"blank behind the dollar", "$ x", " X", "$ X", "$ X"},
    {"index", "x( 1 )", "X( 1 )", "$X( 1 )", "X( 1 )"},
    {"empty", "", "", "$SECTION", ""},
    {"blank", " \t\r\n", "", "$SECTION", ""},
    {"lone dollar", " $ ", "", "$SECTION", "$"},
    {"bytes above ASCII", "\xC3\xA9\xE9z", "\xC3\xA9\xE9Z", "$\xC3\xA9\xE9Z", "\xC3\xA9\xE9Z"},
    {"NUL", std::string_view{"a\0b", 3}, std::string_view{"A\0B", 3}, std::string_view{"$A\0B", 4},
     std::string_view{"A\0B", 3}},
}};

}  // namespace

TEST_CASE("The editor trims blank, tab, line feed and carriage return only") {
    CHECK(editor_trim(" \t\n\rA b\r\n\t ") == "A b");
    CHECK(editor_trim("\v A \f") == "\v A \f");
    CHECK(editor_trim(" \vA\f ") == "\vA\f");
    CHECK(editor_trim("\xC2\xA0") == "\xC2\xA0");
    CHECK(editor_trim(std::string_view{" \0 ", 3}) == std::string_view{"\0", 1});
    CHECK(editor_trim("").empty());
    CHECK(editor_trim(" \t\n\r").empty());
}

TEST_CASE("Text is blank for the editor when trimming leaves nothing") {
    CHECK(is_editor_blank(""));
    CHECK(is_editor_blank(" \t\n\r "));
    CHECK_FALSE(is_editor_blank("\v"));
    CHECK_FALSE(is_editor_blank(" \f "));
    CHECK_FALSE(is_editor_blank(" x "));
}

TEST_CASE("A group name is trimmed, in upper case and without one leading dollar") {
    for (const NameCase& row : name_cases) {
        CAPTURE(row.shown);
        CHECK(editor_section_name(row.name) == row.section);
    }
}

TEST_CASE("A group has an editor's name exactly when that is made of its own") {
    for (const NameCase& group : name_cases) {
        for (const NameCase& asked : name_cases) {
            CAPTURE(group.shown);
            CAPTURE(asked.shown);
            CHECK(is_editor_section(group.name, asked.section) == (group.section == asked.section));
        }
    }
}

TEST_CASE("A header name is the group name behind a dollar, SECTION for none") {
    for (const NameCase& row : name_cases) {
        CAPTURE(row.shown);
        CHECK(editor_dollar_name(row.name) == row.dollar);
    }
}

TEST_CASE("A keyword is trimmed and in upper case") {
    for (const NameCase& row : name_cases) {
        CAPTURE(row.shown);
        CHECK(editor_key_name(row.name) == row.key);
    }
}

TEST_CASE("Keywords are the same exactly when their names are") {
    for (const NameCase& a : name_cases) {
        for (const NameCase& b : name_cases) {
            CAPTURE(a.shown);
            CAPTURE(b.shown);
            CHECK(same_editor_key(a.name, b.name) == (a.key == b.key));
        }
    }
}
