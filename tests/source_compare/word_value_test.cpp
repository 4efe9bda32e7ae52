#include "source/word_value.hpp"

#include <array>
#include <limits>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

namespace nurl::input::gamess::source {

TEST_CASE("A logical needs its periods and takes any letter case") {
    CHECK(logical_of(".TRUE.") == true);
    CHECK(logical_of(".true.") == true);
    CHECK(logical_of(".t.") == true);
    CHECK(logical_of(".FALSE.") == false);
    CHECK(logical_of(".F.") == false);
    for (const std::string_view word : {"", "T", "TRUE", ".TRUE", "TRUE.", ".TR.", "1", "yes", "."})
        CHECK_MESSAGE(logical_of(word) == std::nullopt, word);
}

TEST_CASE("An integer has digits and an optional sign") {
    CHECK(integer_of("0") == 0);
    CHECK(integer_of("007") == 7);
    CHECK(integer_of("+12") == 12);
    CHECK(integer_of("-12") == -12);
    for (const std::string_view word : {"", "+", "-", "+-1", "1.", "1 ", " 1", "1e2", "0x1", "one"})
        CHECK_MESSAGE(integer_of(word) == std::nullopt, word);
}

TEST_CASE("An integer fits in 64 bits or is none") {
    CHECK(integer_of("9223372036854775807") == std::numeric_limits<std::int64_t>::max());
    CHECK(integer_of("-9223372036854775808") == std::numeric_limits<std::int64_t>::min());
    CHECK(integer_of("9223372036854775808") == std::nullopt);
    CHECK(integer_of("-9223372036854775809") == std::nullopt);
}

TEST_CASE("A real has the forms of Fortran") {
    struct Row {
        std::string_view word;
        double value;
    };
    constexpr auto rows = std::to_array<Row>({{"30", 30.0},
                                              {"3.", 3.0},
                                              {".5", 0.5},
                                              {"-.5", -0.5},
                                              {"+1.5", 1.5},
                                              {"3.E1", 30.0},
                                              {"3.0D+01", 30.0},
                                              {"1d-3", 0.001},
                                              {"1D-3", 0.001},
                                              {"1E-999", 0.0}});
    for (const Row& row : rows) CHECK_MESSAGE(real_of(row.word) == row.value, row.word);
    for (const std::string_view word :
         {"", ".", "E5", "1E", "1e999", "nan", "inf", "1.0x", "0x1p3"})
        CHECK_MESSAGE(real_of(word) == std::nullopt, word);
}

namespace {

struct Pair {
    std::string_view a;
    std::string_view b;
};

/// Whether the words of a pair are the same, which must not depend on their order.
bool is_same(const Pair& pair) {
    const bool same = same_word(pair.a, pair.b);
    CHECK_MESSAGE(same_word(pair.b, pair.a) == same, pair.a, " and ", pair.b);
    return same;
}

}  // namespace

TEST_CASE("Words that stand for the same are the same") {
    constexpr auto pairs = std::to_array<Pair>({{"RHF", "rhf"},
                                                {"", ""},
                                                {".T.", ".true."},
                                                {".FALSE.", ".f."},
                                                {"30", "3.E1"},
                                                {"30", "030"},
                                                {"30", "+30"},
                                                {"0", "-0"},
                                                {"0.0", "-0"},
                                                {"1D-3", ".001"},
                                                {"1e999", "1E999"},
                                                {"'a b'", "'a b'"}});
    for (const Pair& pair : pairs) CHECK_MESSAGE(is_same(pair), pair.a, " and ", pair.b);
}

TEST_CASE("Words that stand for something else are not the same") {
    constexpr auto pairs = std::to_array<Pair>({{"RHF", "UHF"},
                                                {"", "0"},
                                                {".T.", ".F."},
                                                {".T.", "T"},
                                                {".T.", "1"},
                                                {"30", "-30"},
                                                {"30", "30.000001"},
                                                {"1e999", "1e998"},
                                                {"'A'", "'a'"},
                                                {"'A'", "A"},
                                                {"'1'", "1"},
                                                {"\"A\"", "'A'"},
                                                {"\"A\"", "\"a\""},
                                                {"\xC3\xA9", "\xC3\x89"}});
    for (const Pair& pair : pairs) CHECK_MESSAGE(!is_same(pair), pair.a, " and ", pair.b);
}

TEST_CASE("Long integers are compared to their last digit") {
    CHECK_FALSE(same_word("9007199254740993", "9007199254740992"));
    CHECK_FALSE(same_word("100000000000000000000000001", "100000000000000000000000000"));
    CHECK(same_word("+00100000000000000000000000001", "100000000000000000000000001"));
}

TEST_CASE("Reals are the same when a double does not tell them apart") {
    CHECK(same_word("0.1", "0.1000000000000000055511151231257827"));
    CHECK_FALSE(same_word("0.1", "0.10000000000000002"));
}

}  // namespace nurl::input::gamess::source
