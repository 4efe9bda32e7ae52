#include "model/names.hpp"

#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "support/groups.hpp"

using nurl::input::gamess::detail::bare_section_name;
using nurl::input::gamess::detail::dollar_section_name;
using nurl::input::gamess::detail::same_section_name;
using nurl::test::deck_of;
using nurl::test::group;

namespace {

struct NameCase {
    const char* shown;      ///< what the row is about
    std::string_view name;  ///< as somebody may spell it
    std::string_view bare;
    std::string_view dollar;
};

constexpr std::array<NameCase, 17> name_cases{{
    {"lower case", "contrl", "CONTRL", "$CONTRL"},
    {"dollar and blanks", "  $Contrl ", "CONTRL", "$CONTRL"},
    {"canonical with dollar", "$CONTRL", "CONTRL", "$CONTRL"},
    {"all six kinds of white space", " \t\n\v\f\rpcm\r\f\v\n\t ", "PCM", "$PCM"},
    {"digits and signs", "vib-2_x", "VIB-2_X", "$VIB-2_X"},
    {"blank inside", "my group", "MY GROUP", "$MY GROUP"},
    {"blank behind the dollar", "$ x", " X", "$ X"},
    {"two dollars", "$$X", "$X", "$$X"},
    {"three dollars", "$$$x", "$$X", "$$$X"},
    {"only two dollars", "$$", "$", "$$"},
    {"dollar inside", "a$b", "A$B", "$A$B"},
    {"empty", "", "SECTION", "$SECTION"},
    {"blank", " \t\v ", "SECTION", "$SECTION"},
    {"lone dollar", "$", "SECTION", "$SECTION"},
    {"lone dollar among blanks", " $\n", "SECTION", "$SECTION"},
    {"bytes above ASCII", "\xC3\xA9\xE9z", "\xC3\xA9\xE9Z", "$\xC3\xA9\xE9Z"},
    {"NUL", std::string_view{"a\0b", 3}, std::string_view{"A\0B", 3}, std::string_view{"$A\0B", 4}},
}};

}  // namespace

TEST_CASE("A bare name is trimmed, in upper case and without one leading dollar") {
    for (const NameCase& row : name_cases) {
        CAPTURE(row.shown);
        CHECK(bare_section_name(row.name) == row.bare);
    }
}

TEST_CASE("A dollar name is the bare name behind one dollar") {
    for (const NameCase& row : name_cases) {
        CAPTURE(row.shown);
        CHECK(dollar_section_name(row.name) == row.dollar);
    }
}

TEST_CASE("Names are the same exactly when their bare names are") {
    for (const NameCase& a : name_cases) {
        for (const NameCase& b : name_cases) {
            CAPTURE(a.shown);
            CAPTURE(b.shown);
            CHECK(same_section_name(a.name, b.name) == (a.bare == b.bare));
        }
    }
}

TEST_CASE("A group is written behind one blank with its dollar name") {
    for (const NameCase& row : name_cases) {
        if (row.bare == "CONTRL") continue;
        CAPTURE(row.shown);
        const std::string expected = " " + std::string{row.dollar} + " $END\n";
        CHECK(deck_of({group(std::string{row.name})}).to_string() == expected);
    }
}
