#include <algorithm>
#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>

#include <doctest/doctest.h>

#include "nurl/input/gamess/typed/detail.hpp"

using namespace nurl::input::gamess;
using namespace nurl::input::gamess::typed::detail;

namespace {

std::string written(double value) {
    std::vector<KeyValue> entries;
    push_optional_double(entries, "K", value);
    return entries.at(0).value;
}

/// A locale that writes a comma for the decimal point and groups digits.
struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

}  // namespace

TEST_CASE("Integers are written in plain decimal") {
    std::vector<KeyValue> entries;
    push_optional_int(entries, " mult ", -12);
    push_optional_int(entries, "A", 0);
    push_optional_int(entries, "B", std::numeric_limits<std::int32_t>::min());
    push_optional_int(entries, "C", std::nullopt);
    push_optional_int(entries, " ", 1);
    CHECK(entries == std::vector<KeyValue>{{"MULT", "-12"}, {"A", "0"}, {"B", "-2147483648"}});
}

TEST_CASE("Reals are written in general notation with 15 digits and capital letters") {
    struct Row {
        double value;
        std::string_view text;
    };
    const std::vector<Row> rows{
        {1.0, "1"},
        {0.5, "0.5"},
        {1e-5, "1E-05"},
        {2.5e20, "2.5E+20"},
        {0.1, "0.1"},
        {0.0001, "0.0001"},
        {-0.0, "-0"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1.0 / 3.0, "0.333333333333333"},
        {-2.5, "-2.5"},
        {1e-300, "1E-300"},
        {123456789012345678.0, "1.23456789012346E+17"},
    };
    for (const Row& row : rows) CHECK(written(row.value) == row.text);
    std::vector<KeyValue> entries;
    push_optional_double(entries, "K", std::nullopt);
    CHECK(entries.empty());
}

TEST_CASE("Reals agree with the C library's notation over a million bit patterns in any locale") {
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread runs
    const char decimal_point =
        *std::localeconv()->decimal_point;  // the C library keeps its own locale
    std::mt19937_64 random(20261121);
    std::size_t differences = 0;
    for (int i = 0; i < 1'000'000; ++i) {
        const auto value = std::bit_cast<double>(random());
        std::array<char, 64> expected{};
        std::snprintf(expected.data(), expected.size(), "%.15G", value);
        std::ranges::replace(expected, decimal_point, '.');
        if (!std::isnan(value) && written(value) != expected.data()) ++differences;
    }
    std::locale::global(before);
    CHECK(differences == 0);
}

TEST_CASE("Logical values are written with their points") {
    std::vector<KeyValue> entries;
    push_optional_bool(entries, "a", true);
    push_optional_bool(entries, "b", false);
    push_optional_bool(entries, "c", std::nullopt);
    CHECK(entries == std::vector<KeyValue>{{"A", ".T."}, {"B", ".F."}});
}

TEST_CASE("Tokens are written trimmed and in upper case, blank ones not at all") {
    std::vector<KeyValue> entries;
    push_optional_token(entries, "method", " rfo ");
    push_optional_token(entries, "a", "  ");
    push_optional_token(entries, "b", std::nullopt);
    CHECK(entries == std::vector<KeyValue>{{"METHOD", "RFO"}});
}

TEST_CASE("Lists are joined by commas, empty ones not written") {
    std::vector<KeyValue> entries;
    push_int_list(entries, "IFREEZ(1)", {1, 2, -3});
    push_int_list(entries, "A(1)", {});
    push_double_list(entries, "temp(1)", {1.0, 0.25, 1e-7});
    push_double_list(entries, "B(1)", {});
    CHECK(entries == std::vector<KeyValue>{{"IFREEZ(1)", "1,2,-3"}, {"TEMP(1)", "1,0.25,1E-07"}});
}
