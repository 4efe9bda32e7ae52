#include <cstdint>
#include <limits>
#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/writer.hpp"

using nurl::input::gamess::format_boolean;
using nurl::input::gamess::Units;
using nurl::input::gamess::units_keyword;

TEST_CASE("A logical value is written as a letter between points") {
    CHECK(format_boolean(true) == ".T.");
    CHECK(format_boolean(false) == ".F.");
}

TEST_CASE("A unit is written as four letters") {
    CHECK(units_keyword(Units::Angstrom) == "ANGS");
    CHECK(units_keyword(Units::Bohr) == "BOHR");
}

TEST_CASE("A unit outside the enumeration is written as the angstrom") {
    for (const std::int32_t number : {-1, 2, 3, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min()}) {
        CAPTURE(number);
        CHECK(units_keyword(static_cast<Units>(number)) == "ANGS");
    }
}
