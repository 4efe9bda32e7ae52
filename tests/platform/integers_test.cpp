#include <array>
#include <cstdint>
#include <limits>
#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/core/text.hpp"

using nurl::core::text::try_parse_int;

namespace {

constexpr std::int32_t untouched = 77;

struct Row {
    std::string text;
    std::int32_t value;
};

}  // namespace

TEST_CASE("An integer is an optional sign and digits") {
    const std::array<Row, 14> rows{{
        {"0", 0},
        {"-0", 0},
        {"+0", 0},
        {"7", 7},
        {"+7", 7},
        {"-7", -7},
        {"007", 7},
        {"-007", -7},
        {"+007", 7},
        {"2147483647", 2147483647},
        {"+2147483647", 2147483647},
        {"-2147483648", std::numeric_limits<std::int32_t>::min()},
        {std::string(1000, '0') + "12", 12},
        {"-" + std::string(1000, '0') + "12", -12},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.text);
        std::int32_t value = untouched;
        CHECK(try_parse_int(row.text, value));
        CHECK(value == row.value);
    }
}

TEST_CASE("A text that is no 32-bit integer is rejected and changes nothing") {
    using namespace std::string_literals;
    for (const std::string& text : {""s,
                                    "+"s,
                                    "-"s,
                                    "+-1"s,
                                    "-+1"s,
                                    "++1"s,
                                    "--1"s,
                                    " 1"s,
                                    "1 "s,
                                    "1\n"s,
                                    "1."s,
                                    "1.0"s,
                                    "1e1"s,
                                    "0x10"s,
                                    "1,000"s,
                                    "1_000"s,
                                    "a"s,
                                    "1a"s,
                                    "1-"s,
                                    "1+1"s,
                                    "\0"s,
                                    "1\0"s,
                                    "\xD9\xA1"s,
                                    "2147483648"s,
                                    "-2147483649"s,
                                    "4294967296"s,
                                    "99999999999999999999999999"s,
                                    std::string(1000, '9')}) {
        CAPTURE(text);
        std::int32_t value = untouched;
        CHECK_FALSE(try_parse_int(text, value));
        CHECK(value == untouched);
    }
}

TEST_CASE("Every integer reads back from its digits") {
    CHECK(rc::check("with and without a plus sign", [](std::int32_t number) {
        const std::string digits = std::to_string(number);
        std::int32_t value = 0;
        RC_ASSERT(try_parse_int(digits, value));
        RC_ASSERT(value == number);
        if (number >= 0) RC_ASSERT(try_parse_int("+" + digits, value));
        RC_ASSERT(value == number);
    }));
}
