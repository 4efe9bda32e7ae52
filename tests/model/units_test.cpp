#include <cstdint>
#include <limits>
#include <type_traits>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/model.hpp"

using namespace nurl::input::gamess;
using nurl::input::gamess::validation::Severity;

static_assert(std::is_same_v<std::underlying_type_t<Units>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<Severity>, std::int32_t>);

TEST_CASE("The enumerators have the values that other programs rely on") {
    CHECK(static_cast<std::int32_t>(Units::Angstrom) == 0);
    CHECK(static_cast<std::int32_t>(Units::Bohr) == 1);
    CHECK(static_cast<std::int32_t>(Severity::Info) == 0);
    CHECK(static_cast<std::int32_t>(Severity::Warning) == 1);
    CHECK(static_cast<std::int32_t>(Severity::Error) == 2);
}

TEST_CASE("Every unit has a keyword text") {
    CHECK(units_keyword(Units::Angstrom) == "ANGS");
    CHECK(units_keyword(Units::Bohr) == "BOHR");
}

TEST_CASE("A value that is no unit has the text of angstrom") {
    CHECK(units_keyword(static_cast<Units>(2)) == "ANGS");
    CHECK(units_keyword(static_cast<Units>(-1)) == "ANGS");
    CHECK(units_keyword(static_cast<Units>(257)) == "ANGS");
    CHECK(units_keyword(static_cast<Units>(std::numeric_limits<std::int32_t>::max())) == "ANGS");
    CHECK(units_keyword(static_cast<Units>(std::numeric_limits<std::int32_t>::min())) == "ANGS");
}
