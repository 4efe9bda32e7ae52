#include "second_reading/plain_text.hpp"

#include <cstdint>
#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/core/text.hpp"

using namespace nurl::test;

TEST_CASE("Numbers that fit no double are zero when small and nothing when large") {
    CHECK(plain::real_of("1e-999") == 0.0);
    CHECK(plain::real_of("-123456.5D-9999999999") == 0.0);
    CHECK(plain::real_of("0.001e+400") == std::nullopt);
    CHECK(plain::real_of("1e+0000000000999") == std::nullopt);
    CHECK(plain::real_of("0." + std::string(400, '0') + "1") == 0.0);
    CHECK(plain::real_of(std::string(400, '1')) == std::nullopt);
}

TEST_CASE("The second readings take the same numbers as the library") {
    const auto text = rc::gen::container<std::string>(rc::gen::elementOf(std::string("01.+-eD9")));
    CHECK(rc::check([&text] {
        const std::string number = *text;
        double real = 0.0;
        const bool is_real = nurl::core::text::try_parse_double(number, real);
        RC_ASSERT(plain::real_of(number) == (is_real ? std::optional{real} : std::nullopt));
        std::int32_t integer = 0;
        const bool is_integer = nurl::core::text::try_parse_int(number, integer);
        RC_ASSERT(plain::integer_of(number) ==
                  (is_integer ? std::optional{integer} : std::nullopt));
    }));
}

TEST_CASE("Lines end at LF, CR LF and CR, and an end at the very end opens no line") {
    CHECK(plain::lines_of("a\r\n\nb\rc\n") == plain::Lines{"a", "", "b", "c"});
    CHECK(plain::lines_of("\r\n").size() == 1);
    CHECK(plain::lines_of("").empty());
}
