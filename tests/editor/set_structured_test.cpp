#include <array>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "editor/edit_result.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::test::after_set;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::Entries;
using nurl::test::extra_of;
using nurl::test::group;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;
using nurl::test::ValueKind;

namespace {

/// The deck that setting something in an empty one gives: the group, and its place.
GamessInput started(std::string_view name) {
    GamessInput deck = deck_with(name);
    deck.sections = {group(std::string{name})};
    return deck;
}

/// Texts that are no value of a kind; none for those kinds that take any text.
std::vector<std::string> unfit_values(ValueKind kind) {
    if (kind == ValueKind::Integer)
        return {"",           "x1",
                "+",          "-",
                "--1",        "+-1",
                "1.",         "1.0",
                "1e3",        "0x1",
                "1 2",        "1,000",
                "2147483648", "-2147483649",
                "\v1",        "1\f",
                "1\v",        "one",
                "1x",         ".5",
                "4294967296", "99999999999999999999999"};
    if (kind == ValueKind::Logical)
        return {"",   "0",  ".TRUE.", ".FALSE.", "ON",  "OFF", "Y",     "N",     "2",
                "+1", "01", ".T",     "T.",      "T F", "\vT", "YES\f", "t rue", "-1"};
    return {};
}

}  // namespace

TEST_CASE("A value that converts goes into the member of its keyword") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        CAPTURE(row.given);
        GamessInput expected = started(row.group);
        row.put(expected);
        CHECK(after_set({}, row.group, row.keyword, row.given) == expected);
    }
}

TEST_CASE("Names may be spelled in any case with blanks and a dollar, values with blanks") {
    const GamessInput deck = after_set({}, "\t$contrl\r\n", " scftyp ", " \trhf\r\n");
    GamessInput expected = started("CONTRL");
    expected.control.has_scftyp = true;
    CHECK(deck == expected);
    CHECK(InputEditor{deck}.get_keyword("CONTRL", "SCFTYP") == "RHF");
}

TEST_CASE("A value that does not convert becomes a further entry, the member keeping its value") {
    for (const StructuredValue& row : structured_values()) {
        GamessInput deck = started(row.group);
        row.put(deck);
        for (const std::string& value : unfit_values(row.kind)) {
            CAPTURE(row.keyword);
            CAPTURE(value);
            GamessInput expected = deck;
            extra_of(expected, row.group) = {{std::string{row.keyword}, value}};
            CHECK(after_set(deck, row.group, row.keyword, " " + value + "\t") == expected);
        }
    }
}

TEST_CASE("A value that does not convert leaves an empty member empty") {
    GamessInput expected = started("CONTRL");
    expected.control.extra = {{"ICHARG", "x1"}};
    CHECK(after_set({}, "CONTRL", "ICHARG", "x1") == expected);
    CHECK(InputEditor{expected}.get_keyword("CONTRL", "ICHARG") == "x1");
}

TEST_CASE("A zero is no logical value although a one is") {
    const GamessInput zero = after_set({}, "SCF", "DIRSCF", "0");
    CHECK_FALSE(zero.scf->dirscf.has_value());
    CHECK(zero.scf->extra == Entries{{"DIRSCF", "0"}});
    const GamessInput one = after_set(zero, "SCF", "DIRSCF", "1");
    CHECK(one.scf->dirscf == true);
    CHECK(one.scf->extra.empty());
    const GamessInput symmetric =
        after_set(after_set({}, "CONTRL", "NOSYM", "1"), "CONTRL", "NOSYM", "0");
    CHECK(symmetric.control.nosym);
    CHECK(symmetric.control.extra == Entries{{"NOSYM", "0"}});
}

TEST_CASE("Logical words are taken in any case for every logical keyword") {
    for (const StructuredValue& row : structured_values()) {
        if (row.kind != ValueKind::Logical) continue;
        CAPTURE(row.keyword);
        const bool is_true = row.written == ".T." || row.written == "1";
        GamessInput expected = started(row.group);
        row.put(expected);
        const auto words = is_true
                               ? std::vector<const char*>{".T.",  ".t.", "T",   "t", "TRUE", "True",
                                                          "true", "YES", "yEs", "1", "\t1 "}
                               : std::vector<const char*>{".F.",   ".f.",   "F",  "f", "FALSE",
                                                          "False", "false", "NO", "nO"};
        for (const char* word : words) {
            CAPTURE(word);
            CHECK(after_set({}, row.group, row.keyword, word) == expected);
        }
    }
}

TEST_CASE("Integers are decimal with an optional sign and fit in 32 bits") {
    struct IntegerCase {
        const char* text;
        std::int32_t value;
    };
    constexpr std::array<IntegerCase, 9> cases{{{"0", 0},
                                                {"-0", 0},
                                                {"7", 7},
                                                {"+7", 7},
                                                {"-7", -7},
                                                {"0007", 7},
                                                {" 12\r\n", 12},
                                                {"2147483647", 2147483647},
                                                {"-2147483648", -2147483647 - 1}}};
    for (const IntegerCase& row : cases) {
        CAPTURE(row.text);
        CHECK(after_set({}, "SYSTEM", "MWORDS", row.text).system->mwords == row.value);
        CHECK(after_set({}, "CONTRL", "ICHARG", row.text).control.icharg == row.value);
    }
}

TEST_CASE("Every unit but BOHR is the angstrom") {
    using nurl::input::gamess::Units;
    const auto unit_of = [](const char* text) {
        return after_set(after_set({}, "CONTRL", "UNITS", "BOHR"), "CONTRL", "UNITS", text)
            .control.units;
    };
    for (const char* text : {"bohr", "BOHR", "Bohr", " bOHR\t"})
        CHECK(unit_of(text) == Units::Bohr);
    for (const char* text : {"ANGS", "angs", "XYZ", "", "BOHRS", "BOH", "AU", "\vBOHR", "BO HR"}) {
        CAPTURE(text);
        CHECK(unit_of(text) == Units::Angstrom);
    }
}

TEST_CASE("Texts keep a vertical tab and are stored in upper case") {
    CHECK(after_set({}, "CONTRL", "COORD", " \va b\f ").control.coord == "\vA B\f");
    CHECK(after_set({}, "CONTRL", "PP", "\xC3\xA9z").control.pp == "\xC3\xA9Z");
}

TEST_CASE("An empty text is stored, but not listed") {
    const GamessInput deck = after_set({}, "GUESS", "GUESS", " ");
    CHECK(deck.guess->guess == "");
    CHECK_FALSE(InputEditor{deck}.has_keyword("GUESS", "GUESS"));
}

TEST_CASE("A value that converts takes its keyword out of the further entries") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        const std::string keyword{row.keyword};
        GamessInput deck = started(row.group);
        extra_of(deck, row.group) = {
            {"A", "1"}, {keyword, "x"}, {"B", "2"}, {'\t' + keyword + '\n', "y"}, {"C", "3"}};
        GamessInput expected = started(row.group);
        row.put(expected);
        extra_of(expected, row.group) = {{"A", "1"}, {"B", "2"}, {"C", "3"}};
        CHECK(after_set(deck, row.group, row.keyword, row.given) == expected);
    }
}

TEST_CASE("A keyword without a member is a further entry with its value as given") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput expected = started(name);
        extra_of(expected, name) = {{"LOCAL(1)", "Some  words"}};
        CHECK(after_set({}, name, " local(1) ", "\tSome  words\n") == expected);
    }
}

TEST_CASE("A keyword of another structured group has no member") {
    for (const StructuredValue& row : structured_values()) {
        for (const auto name : structured_groups) {
            if (name == row.group) continue;
            GamessInput expected = started(name);
            extra_of(expected, name) = {{std::string{row.keyword}, std::string{row.given}}};
            CHECK(after_set({}, name, row.keyword, row.given) == expected);
        }
    }
}

TEST_CASE("A keyword with an index, a blank or a vertical tab has no member") {
    for (const char* keyword : {"MULT(1)", "MU LT", "\vMULT", "MULT\f", "$MULT"}) {
        CAPTURE(keyword);
        GamessInput expected = started("CONTRL");
        expected.control.extra = {{keyword, "2"}};
        CHECK(after_set({}, "CONTRL", keyword, "2") == expected);
    }
}

TEST_CASE("A further entry that is there gets the new value at its place, the first one only") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput deck = started(name);
        extra_of(deck, name) = {{"A", "1"}, {" local ", "2"}, {"B", "3"}, {"LOCAL", "4"}};
        GamessInput expected = deck;
        extra_of(expected, name)[1].value = "new";
        CHECK(after_set(deck, name, "Local", "new") == expected);
    }
}

TEST_CASE("The copy of a structured group that was read is left as it is") {
    GamessInput deck = deck_of({group("CONTRL", {{"MULT", "1"}}, {"MULT=1", "  x  "})});
    deck.has_control = true;
    GamessInput expected = deck;
    expected.control.has_mult = true;
    expected.control.mult = 3;
    CHECK(after_set(deck, "CONTRL", "MULT", "3") == expected);
}

TEST_CASE("Setting a keyword writes the group at the place it had in the text") {
    GamessInput deck = deck_of({group("A"), group("scf"), group("B")});
    CHECK(after_set(deck, "SCF", "DIIS", "T").to_string() ==
          " $A $END\n $SCF DIIS=.T. $END\n $B $END\n");
}
