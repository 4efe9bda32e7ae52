#include "model/names.hpp"

#include <array>
#include <string_view>

#include <doctest/doctest.h>

#include "model/printing.hpp"

using nurl::input::gamess::detail::bare_section_name;
using nurl::input::gamess::detail::dollar_section_name;
using nurl::input::gamess::detail::same_section_name;

namespace {

struct NameRow {
    std::string_view name;
    std::string_view bare;
    std::string_view dollar;
};

constexpr std::array<NameRow, 11> rows{{
    {"contrl", "CONTRL", "$CONTRL"},
    {" $Contrl ", "CONTRL", "$CONTRL"},
    {"\v\f\t\r\n $scf\n", "SCF", "$SCF"},
    {"", "SECTION", "$SECTION"},
    {" \t", "SECTION", "$SECTION"},
    {"$", "SECTION", "$SECTION"},
    {" $ ", "SECTION", "$SECTION"},
    {"$$X", "$X", "$$X"},
    {"$$", "$", "$$"},
    {"x$y", "X$Y", "$X$Y"},
    {"\xE4z", "\xE4Z", "$\xE4Z"},
}};

}  // namespace

TEST_CASE("A canonical name has no blanks at its ends and no leading dollar sign") {
    for (const auto& row : rows) {
        CAPTURE(row.name);
        CHECK(bare_section_name(row.name) == row.bare);
    }
}

TEST_CASE("The name in a header is the canonical name behind a dollar sign") {
    for (const auto& row : rows) {
        CAPTURE(row.name);
        CHECK(dollar_section_name(row.name) == row.dollar);
    }
}

TEST_CASE("Two names are the same when their canonical names are") {
    for (const auto& first : rows) {
        for (const auto& second : rows) {
            CAPTURE(first.name);
            CAPTURE(second.name);
            CHECK(same_section_name(first.name, second.name) == (first.bare == second.bare));
        }
    }
}
