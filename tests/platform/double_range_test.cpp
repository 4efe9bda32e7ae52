#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "platform/double_checks.hpp"

using nurl::test::is_rejected;
using nurl::test::reads_as;

namespace {

std::string digits_of(double number, auto... format) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.begin(), buffer.end(), number, format...);
    return {buffer.begin(), result.ptr};
}

double any_finite_double() {
    const auto bits = *rc::gen::arbitrary<std::uint64_t>();
    const auto number = std::bit_cast<double>(bits);
    return std::isfinite(number) ? number : 0.0;
}

const std::string& many_zeros() {
    static const std::string zeros(400, '0');
    return zeros;
}

const std::string& many_nines() {
    static const std::string nines(400, '9');
    return nines;
}

}  // namespace

TEST_CASE("A number too large for a double is rejected") {
    CHECK(reads_as("1.7976931348623157e308", std::numeric_limits<double>::max()));
    CHECK(reads_as("1.7976931348623158e308", std::numeric_limits<double>::max()));
    for (const std::string& text :
         {std::string("1.7976931348623159e308"), std::string("1e309"), std::string("-1e309"),
          std::string("1d309"), std::string("1e99999999999999999999"),
          std::string("0.001e99999999999999999999"), std::string("1e9223372036854775807"),
          "1" + many_zeros(), many_nines() + ".5", many_nines() + "e-50",
          "0." + many_zeros() + "1e+99999"}) {
        CAPTURE(text);
        CHECK(is_rejected(text));
    }
}

TEST_CASE("A number too small for a double is a zero of its sign") {
    CHECK(reads_as("4.9e-324", std::numeric_limits<double>::denorm_min()));
    CHECK(reads_as("2.5e-324", std::numeric_limits<double>::denorm_min()));
    CHECK(reads_as("2.2250738585072011e-308", 2.2250738585072011e-308));
    CHECK(reads_as("2.4e-324", 0.0));
    CHECK(reads_as("-2.4e-324", -0.0));
    CHECK(reads_as("1e-400", 0.0));
    CHECK(reads_as("+1d-400", 0.0));
    CHECK(reads_as("-1D-400", -0.0));
    CHECK(reads_as("1e-99999999999999999999", 0.0));
    CHECK(reads_as("0.01e-9223372036854775808", 0.0));
    CHECK(reads_as("-123.456e-99999999999999999999", -0.0));
    CHECK(reads_as("0." + many_zeros() + "1", 0.0));
    CHECK(reads_as("0." + many_zeros() + "1e+5", 0.0));
    CHECK(reads_as("-." + many_zeros() + "1", -0.0));
    CHECK(reads_as(many_nines() + "e-800", 0.0));
    CHECK(reads_as(many_zeros() + "1e-400", 0.0));
}

TEST_CASE("Zero is zero whatever its exponent") {
    CHECK(reads_as("0e99999999999999", 0.0));
    CHECK(reads_as("-0e99999999999999999999", -0.0));
    CHECK(reads_as("0.000D-99999999999999999999", 0.0));
    CHECK(reads_as("0." + many_zeros(), 0.0));
}

TEST_CASE("Long texts are read as exactly as short ones") {
    const std::string zeros(1'000'000, '0');
    CHECK(reads_as("1" + zeros + "e-1000000", 1.0));
    CHECK(reads_as("1" + zeros + "D-1000000", 1.0));
    CHECK(reads_as("0." + zeros + "1e1000001", 1.0));
    CHECK(reads_as(zeros + "2.5" + zeros, 2.5));
    CHECK(reads_as(zeros + "2.5" + zeros + "d1", 25.0));
    // Half way between two doubles, and then a little more, far behind.
    CHECK(reads_as("9007199254740993." + zeros, 9007199254740992.0));
    CHECK(reads_as("9007199254740993." + zeros + "1", 9007199254740994.0));
}

TEST_CASE("Every double reads back to the same bits") {
    CHECK(rc::check("shortest digits", [] {
        const double number = any_finite_double();
        RC_ASSERT(reads_as(digits_of(number), number));
    }));
    CHECK(rc::check("seventeen digits", [] {
        const double number = any_finite_double();
        RC_ASSERT(reads_as(digits_of(number, std::chars_format::scientific, 16), number));
    }));
    CHECK(rc::check("seventeen digits with a Fortran exponent", [] {
        const double number = any_finite_double();
        std::string text = digits_of(number, std::chars_format::scientific, 16);
        text.at(text.find('e')) = *rc::gen::element('d', 'D');
        RC_ASSERT(reads_as(text, number));
    }));
}
