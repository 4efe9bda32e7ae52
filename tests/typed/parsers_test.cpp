#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/typed/detail.hpp"

using namespace nurl::input::gamess::typed::detail;

TEST_CASE("Integers are separated by commas, blanks around them do not count") {
    struct Row {
        std::string_view text;
        std::vector<std::int32_t> list;
    };
    const std::vector<Row> rows{
        {"1,2,3", {1, 2, 3}},
        {"1, 2 ,3", {1, 2, 3}},
        {"7", {7}},
        {"-1,+2", {-1, 2}},
        {"1,,2", {1, 2}},
        {"1,2,", {1, 2}},
        {",1", {1}},
        {"", {}},
        {"  ", {}},
        {",", {}},
        {" , ", {}},
        {"\t5\n", {5}},
        {"2147483647,-2147483648", {2147483647, -2147483647 - 1}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        std::vector<std::int32_t> list{9, 9};
        CHECK(parse_int_list(row.text, list));
        CHECK(list == row.list);
    }
}

TEST_CASE("A list with a piece that is no integer is refused and the output stays") {
    for (const std::string_view text :
         {"1 2", "1,x", "3*0", "1.0", "1;2", "2147483648", "1,2,3 4", "--1", "1-2"}) {
        CAPTURE(text);
        std::vector<std::int32_t> list{4, 5};
        CHECK_FALSE(parse_int_list(text, list));
        CHECK(list == std::vector<std::int32_t>{4, 5});
    }
}

TEST_CASE("Reals are separated by commas and may have Fortran exponents") {
    std::vector<double> list{9.0};
    CHECK(parse_double_list("1, .5,2.,-1e-3 , 2.5D+2,", list));
    CHECK(list == std::vector<double>{1.0, 0.5, 2.0, -0.001, 250.0});
    CHECK(parse_double_list(" , ", list));
    CHECK(list.empty());
}

TEST_CASE("A list with a piece that is no real is refused and the output stays") {
    for (const std::string_view text :
         {"1.0 2.0", "1,x", "3*0.0", "inf", "nan", "1e999", "0x1p3"}) {
        CAPTURE(text);
        std::vector<double> list{4.5};
        CHECK_FALSE(parse_double_list(text, list));
        CHECK(list == std::vector<double>{4.5});
    }
}

TEST_CASE("Logical values have ten spellings in any case") {
    for (const std::string_view text : {".T.", "TRUE", "T", "1", "YES", " .t. ", "Yes", "True"}) {
        CAPTURE(text);
        bool value = false;
        CHECK(try_parse_bool(text, value));
        CHECK(value);
    }
    for (const std::string_view text : {".F.", "F", "FALSE", "0", "NO", " no\t", ".f."}) {
        CAPTURE(text);
        bool value = true;
        CHECK(try_parse_bool(text, value));
        CHECK_FALSE(value);
    }
}

TEST_CASE("Other texts are no logical values and leave the output alone") {
    for (const std::string_view text : {"", " ", "ON", "OFF", "Y", "N", ".TRUE.", ".FALSE.", "2"}) {
        for (const bool before : {false, true}) {
            CAPTURE(text);
            bool value = before;
            CHECK_FALSE(try_parse_bool(text, value));
            CHECK(value == before);
        }
    }
}

TEST_CASE("The base of a keyword is upper case without the index that ends it") {
    struct Row {
        std::string_view key;
        std::string_view base;
    };
    const std::vector<Row> rows{
        {" nstate(1) ", "NSTATE"},
        {"IFREEZ(12)", "IFREEZ"},
        {"ifreez(3)", "IFREEZ"},
        {"A()", "A"},
        {"A(1)B", "A(1)B"},
        {"X(1)Y", "X(1)Y"},
        {"A(1", "A(1"},
        {"A)", "A)"},
        {"(1)", ""},
        {"A (1)", "A "},
        {"a(b)(c)", "A"},
        {"", ""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.key);
        CHECK(base_key(row.key) == row.base);
    }
}
