// How the values of structured keywords are read.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

namespace {

/// A text and the value it stands for.
template <class Value>
struct Row {
    std::string text;
    Value value;
};

ScfSection read_scf(const std::string& keywords) {
    const GamessInput deck = read_silently("$SCF " + keywords + "\n$END");
    REQUIRE(deck.scf.has_value());
    return *deck.scf;
}

ControlSection read_control(const std::string& keywords) {
    const GamessInput deck = read_silently("$CONTRL " + keywords + "\n$END");
    REQUIRE(deck.has_control);
    return deck.control;
}

}  // namespace

TEST_CASE("A logical value has ten spellings in any case") {
    const std::vector<Row<bool>> rows{
        {".T.", true},  {"T", true},  {"TRUE", true},   {"YES", true}, {"1", true},
        {".F.", false}, {"F", false}, {"FALSE", false}, {"NO", false}, {"0", false},
        {".t.", true},  {"t", true},  {"true", true},   {"yes", true}, {"True", true},
        {".f.", false}, {"f", false}, {"false", false}, {"no", false}, {"No", false},
    };
    for (const auto& row : rows) {
        CAPTURE(row.text);
        CHECK(read_scf("DIIS=" + row.text).diis == row.value);
        CHECK(read_scf("DIIS=" + row.text).extra == Entries{});
        CHECK(read_control("NOSYM=" + row.text).nosym == row.value);
        CHECK(read_control("NOSYM=" + row.text).has_nosym);
    }
}

TEST_CASE("No other text is a logical value") {
    for (const std::string text : {".TRUE.", ".FALSE.", ".T", "F.", "Y", "N", "ON", "OFF", "2",
                                   "-1", "00", "01", "+1", "T F", ".T. words", "'.T.'", "T,"}) {
        CAPTURE(text);
        CHECK(read_scf("DIIS=" + text).diis == std::nullopt);
        CHECK(read_scf("DIIS=" + text).extra == Entries{{"DIIS", text}});
        CHECK_FALSE(read_control("NOSYM=" + text).has_nosym);
        CHECK(read_control("NOSYM=" + text).extra == Entries{{"NOSYM", text}});
    }
}

TEST_CASE("An integer is decimal with an optional sign and has 32 bits") {
    const std::vector<Row<std::int32_t>> rows{
        {"0", 0},
        {"+5", 5},
        {"-5", -5},
        {"007", 7},
        {"-0", 0},
        {"2147483647", 2147483647},
        {"+2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"00000000000001", 1},
    };
    for (const auto& row : rows) {
        CAPTURE(row.text);
        CHECK(read_control("ICHARG=" + row.text).icharg == row.value);
        CHECK(read_control("ICHARG=" + row.text).has_icharg);
        CHECK(read_control("MAXIT= " + row.text + " ").maxit == row.value);
    }
}

TEST_CASE("No other text is an integer") {
    for (const std::string text :
         {"abc", "1.0", "1.", "1e3", "1 2", "0x1", "--1", "+-1", "+", "-", "1-", "2147483648",
          "-2147483649", "99999999999999999999", "1,", "1 ! comment", "\xEF\xBC\x91"}) {
        CAPTURE(text);
        CHECK_FALSE(read_control("ICHARG=" + text).has_icharg);
        CHECK(read_control("ICHARG=" + text).icharg == 0);
        CHECK(read_control("ICHARG=" + text).extra == Entries{{"ICHARG", text}});
        CHECK(read_control("MAXIT=" + text).maxit == std::nullopt);
        CHECK(read_control("MAXIT=" + text).extra == Entries{{"MAXIT", text}});
    }
}

TEST_CASE("The unit is bohr when the value says so and angstrom for every other value") {
    const std::vector<Row<Units>> rows{
        {"BOHR", Units::Bohr},       {"bohr", Units::Bohr},         {"Bohr", Units::Bohr},
        {"ANGS", Units::Angstrom},   {"angs", Units::Angstrom},     {"AU", Units::Angstrom},
        {"BOHRS", Units::Angstrom},  {"BOH", Units::Angstrom},      {"1", Units::Angstrom},
        {"'BOHR'", Units::Angstrom}, {"BOHR now", Units::Angstrom},
    };
    for (const auto& row : rows) {
        CAPTURE(row.text);
        const ControlSection control = read_control("UNITS=" + row.text);
        CHECK(control.units == row.value);
        CHECK(control.has_units);
        CHECK(control.extra == Entries{});
    }
}

TEST_CASE("A text value is trimmed and in upper case and keeps its inner blanks") {
    CHECK(read_control("DFTTYP= b3lyp  v5 \t").dfttyp == "B3LYP  V5");
    CHECK(read_control("COORD=\"Zmt\"").coord == "\"ZMT\"");
    CHECK(read_control("PP=\xC3\xA4z").pp == "\xC3\xA4Z");
    CHECK(read_control("SCFTYP=1").scftyp == "1");
}

TEST_CASE("The generic copy keeps the values as written") {
    const GamessInput deck = read_silently("$contrl scftyp=uhf nosym=yes icharg=+1 $end");
    CHECK(deck.sections ==
          Sections{{"CONTRL", {{"SCFTYP", "uhf"}, {"NOSYM", "yes"}, {"ICHARG", "+1"}}, {}}});
}
