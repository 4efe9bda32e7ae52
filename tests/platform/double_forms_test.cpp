#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "nurl/core/text.hpp"
#include "platform/double_checks.hpp"

using nurl::core::text::try_parse_double;
using nurl::test::is_rejected;
using nurl::test::reads_as;

namespace {

struct Row {
    std::string_view text;
    double value;
};

/// Drops leading digits. @return how many
std::size_t take_digits(std::string_view& text) {
    std::size_t count = 0;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; ++count)
        text.remove_prefix(1);
    return count;
}

void take_sign(std::string_view& text) {
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
}

/// The form of a decimal number, written down independently of std::from_chars.
bool has_number_form(std::string_view text) {
    take_sign(text);
    std::size_t digits = take_digits(text);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        digits += take_digits(text);
    }
    if (digits == 0) return false;
    if (text.empty()) return true;
    if (std::string_view("eEdD").find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    take_sign(text);
    return take_digits(text) > 0 && text.empty();
}

}  // namespace

TEST_CASE("A number may have a sign and a point and an exponent") {
    const std::array<Row, 30> rows{{
        {"0", 0.0},         {"-0", -0.0},         {"+0", 0.0},
        {"1", 1.0},         {"+1", 1.0},          {"-1", -1.0},
        {"1.", 1.0},        {".5", 0.5},          {"-.5", -0.5},
        {"+.5", 0.5},       {"-1.", -1.0},        {"1.5", 1.5},
        {"007.50", 7.5},    {"1e3", 1000.0},      {"1E3", 1000.0},
        {"1d3", 1000.0},    {"1D3", 1000.0},      {"1e+3", 1000.0},
        {"1e-3", 0.001},    {"1D+03", 1000.0},    {"-1.5D-3", -0.0015},
        {"1.e2", 100.0},    {".5d1", 5.0},        {"+2.5E+00", 2.5},
        {"-0.0D+00", -0.0}, {"1e0", 1.0},         {"1e-0", 1.0},
        {"0.1", 0.1},       {"-1e0003", -1000.0}, {"9007199254740993", 9007199254740992.0},
    }};
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(reads_as(row.text, row.value));
    }
}

TEST_CASE("A text that is no decimal number is rejected and changes nothing") {
    using namespace std::string_literals;
    for (const std::string& text : {""s,
                                    "+"s,
                                    "-"s,
                                    "."s,
                                    "+."s,
                                    "-."s,
                                    "e5"s,
                                    ".e5"s,
                                    "d5"s,
                                    "1e"s,
                                    "1e+"s,
                                    "1e-"s,
                                    "1d"s,
                                    "1D+"s,
                                    "+-1"s,
                                    "-+1"s,
                                    "++1"s,
                                    "--1"s,
                                    "1e+-2"s,
                                    "1e++2"s,
                                    "1e5e5"s,
                                    "1d5d5"s,
                                    "1e5d5"s,
                                    "1d5e5"s,
                                    "1e1.5"s,
                                    "1.2.3"s,
                                    "1..2"s,
                                    " 1"s,
                                    "1 "s,
                                    "1 e5"s,
                                    "1e 5"s,
                                    "1\n"s,
                                    "1,5"s,
                                    "1'000"s,
                                    "1_0"s,
                                    "0x10"s,
                                    "0x1p3"s,
                                    "inf"s,
                                    "-inf"s,
                                    "+inf"s,
                                    "INF"s,
                                    "infinity"s,
                                    "nan"s,
                                    "NaN"s,
                                    "-nan"s,
                                    "nan(1)"s,
                                    "a"s,
                                    "1a"s,
                                    "1f"s,
                                    "1.0f"s,
                                    "1q5"s,
                                    "1\0"s,
                                    "\0"s,
                                    "1e5\0"s,
                                    "\xD9\xA1"s,
                                    "RHF"s,
                                    "6-31G(d)"s,
                                    "1D5 "s,
                                    "dd"s,
                                    "."s + std::string(100, 'd'),
                                    std::string(100, '1') + "d",
                                    std::string(100, '1') + "dd5"}) {
        CAPTURE(text);
        CHECK(is_rejected(text));
    }
}

TEST_CASE("Every short text is read exactly when it has the form of a number") {
    constexpr std::string_view alphabet = "+-.1eD ";
    constexpr int longest = 5;  // a longer one could overflow
    int accepted = 0;
    std::string text;
    const auto visit = [&](const auto& self) -> void {
        double value = 0.0;
        const bool read = try_parse_double(text, value);
        if (read) ++accepted;
        if (read != has_number_form(text)) FAIL_CHECK("wrong answer for \"", text, "\"");
        if (text.size() == longest) return;
        for (const char c : alphabet) {
            text.push_back(c);
            self(self);
            text.pop_back();
        }
    };
    visit(visit);
    CHECK(accepted == 119);
}

TEST_CASE("A Fortran exponent is read in texts of every length") {
    for (std::size_t zeros = 0; zeros < 200; ++zeros) {
        CAPTURE(zeros);
        CHECK(reads_as("1." + std::string(zeros, '0') + "D+2", 100.0));
    }
}
