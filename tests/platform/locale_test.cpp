#include <cstdint>
#include <sstream>
#include <string>

#include <doctest/doctest.h>

#include "nurl/core/text.hpp"
#include "platform/double_checks.hpp"
#include "support/comma_locale.hpp"

using nurl::core::text::to_lower_copy;
using nurl::core::text::to_upper_copy;
using nurl::core::text::trim;
using nurl::core::text::try_parse_int;
using nurl::test::CommaLocale;
using nurl::test::is_rejected;
using nurl::test::reads_as;

TEST_CASE("Numbers are read alike under a locale with a decimal comma") {
    const CommaLocale locale;
    std::ostringstream shown;
    shown << 1234.5;
    REQUIRE(shown.str() == "1.234,5");
    CHECK(reads_as("1234.5", 1234.5));
    CHECK(reads_as("-1.5D-3", -0.0015));
    CHECK(is_rejected("1,5"));
    CHECK(is_rejected("1.234,5"));
    std::int32_t value = 0;
    CHECK_FALSE(try_parse_int("1.234", value));
    CHECK(try_parse_int("1234", value));
    CHECK(value == 1234);
}

TEST_CASE("Letters and white space are those of ASCII under a UTF-8 locale") {
    const CommaLocale locale;
    CHECK(to_upper_copy("\xC3\xA9t\xE9") == "\xC3\xA9T\xE9");
    CHECK(to_lower_copy("\xC3\x89T\xC9") == "\xC3\x89t\xC9");
    CHECK(trim("\xC2\xA0 x \x85") == "\xC2\xA0 x \x85");
}
