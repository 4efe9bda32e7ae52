#include <optional>
#include <string>

#include <doctest/doctest.h>

#include "editor/entry_list.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::Entries;
using nurl::test::extra_of;
using nurl::test::group;
using nurl::test::Lines;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

Entries listed(const GamessInput& deck, std::string_view name) {
    return InputEditor{deck}.list_keywords(name);
}

/// The keywords of a generic group.
Entries listed_in(const Entries& entries, const Lines& raw_lines = {}) {
    return listed(deck_of({group("X", entries, raw_lines)}), "X");
}

}  // namespace

TEST_CASE("A structured group lists its members as they are written") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        GamessInput deck = deck_with(row.group);
        row.put(deck);
        const Entries expected{{std::string{row.keyword}, std::string{row.written}}};
        CHECK(listed(deck, row.group) == expected);
        CHECK(listed(deck, "\t$" + std::string{row.group} + "\r\n") == expected);
    }
}

TEST_CASE("A structured group lists members in the order of writing, further entries behind") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.pp = "mcp";
    deck.control.maxit = 30;
    deck.control.has_nosym = deck.control.has_mult = deck.control.has_coord = true;
    deck.control.exetyp = " ";
    deck.control.extra = {{" mult", " x "}, {"A", ""}, {"", "1"}, {"b", "Two  words"}, {"b", "3"}};
    CHECK(listed(deck, "contrl") == Entries{{"MULT", "1"},
                                            {"NOSYM", "0"},
                                            {"MAXIT", "30"},
                                            {"PP", "MCP"},
                                            {"MULT", "x"},
                                            {"B", "Two  words"},
                                            {"B", "3"}});
}

TEST_CASE("A structured group that is absent lists nothing, whatever its copy holds") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput deck = deck_of({group(std::string{name}, {{"MULT", "2"}}, {"DIIS=1"})});
        deck.control.has_mult = true;
        deck.control.extra = {{"A", "1"}};
        CHECK(listed(deck, name).empty());
        CHECK(listed(deck_with(name), name).empty());
    }
}

TEST_CASE("A structured group lists nothing from its copy") {
    GamessInput deck = deck_of({group("SCF", {{"DIIS", ".T."}}, {"MOM=1"})});
    deck.scf.emplace();
    deck.scf->soscf = false;
    CHECK(listed(deck, "SCF") == Entries{{"SOSCF", ".F."}});
}

TEST_CASE("$DATA lists nothing") {
    GamessInput deck = deck_of({group("DATA", {{"A", "1"}})});
    deck.title = "K=1";
    deck.data_lines = {"K=1"};
    for (const char* name : {"DATA", " $data "}) {
        CHECK(listed(deck, name).empty());
        CHECK(InputEditor{deck}.get_keyword(name, "ANY") == std::nullopt);
        CHECK_FALSE(InputEditor{deck}.has_keyword(name, "A"));
    }
}

TEST_CASE("A generic group that is missing lists nothing") {
    CHECK(listed(GamessInput{}, "X").empty());
    CHECK(listed(deck_of({group("Y", {{"A", "1"}})}), "X").empty());
}

TEST_CASE("A generic group lists its entries as they are stored") {
    CHECK(listed_in({{"B", "1"}, {"a", " Two  words "}, {"C(1)", ""}}) ==
          Entries{{"B", "1"}, {"a", " Two  words "}, {"C(1)", ""}});
}

TEST_CASE("A generic group lists the pairs of its raw lines behind the entries") {
    CHECK(listed_in({{"A", "1"}}, {"text b = Two words C(1)=3", "no pairs", "", "d=4 ! note"}) ==
          Entries{{"A", "1"}, {"B", "Two words"}, {"C(1)", "3"}, {"D", "4 ! note"}});
}

TEST_CASE("A keyword that stands several times is listed at its first place with its last value") {
    CHECK(listed_in({{"A", "1"}, {"B", "2"}, {"A", "3"}}) == Entries{{"A", "3"}, {"B", "2"}});
    CHECK(listed_in({}, {"A=1 B=2 A=3", "B=4"}) == Entries{{"A", "3"}, {"B", "4"}});
    CHECK(listed_in({{"A", "1"}, {"B", "2"}, {"C", "3"}}, {"C=4 D=5", "A=6 D=7"}) ==
          Entries{{"A", "6"}, {"B", "2"}, {"C", "4"}, {"D", "7"}});
}

TEST_CASE("A keyword that stands several times keeps its first spelling") {
    CHECK(listed_in({{" key\t", "1"}, {"KEY", "2"}}, {"Key=3"}) == Entries{{" key\t", "3"}});
}

TEST_CASE("Keywords that differ in a vertical tab or an index are different") {
    CHECK(listed_in({{"A", "1"}, {"\vA", "2"}, {"A(1)", "3"}}) ==
          Entries{{"A", "1"}, {"\vA", "2"}, {"A(1)", "3"}});
}

TEST_CASE("A group is listed by the first of its name, read groups before added ones") {
    GamessInput deck = deck_of({group("A"), group("x", {{"K", "1"}}), group("X", {{"L", "2"}})});
    deck.extra_sections = {group("X", {{"M", "3"}}), group(" y", {{"N", "4"}})};
    CHECK(listed(deck, "X") == Entries{{"K", "1"}});
    CHECK(listed(deck, "$Y") == Entries{{"N", "4"}});
}

TEST_CASE("A blank name lists the group SECTION") {
    const GamessInput deck = deck_of({group("X"), group("Section", {{"K", "1"}})});
    for (const char* name : {"", " ", "$", "SECTION"})
        CHECK(listed(deck, name) == Entries{{"K", "1"}});
}

TEST_CASE("A keyword is asked for in any case with blanks around it") {
    const InputEditor editor{deck_of({group("X", {{" key ", " v "}}, {"other(1)=2"})})};
    for (const char* key : {"KEY", "key", "\tKey\r\n"}) {
        CAPTURE(key);
        CHECK(editor.get_keyword(" $x", key) == " v ");
        CHECK(editor.has_keyword(" $x", key));
    }
    CHECK(editor.get_keyword("X", "OTHER(1)") == "2");
    for (const char* key : {"OTHER", "KE", "KEYS", "\vKEY", "", "$KEY"}) {
        CAPTURE(key);
        CHECK(editor.get_keyword("X", key) == std::nullopt);
        CHECK_FALSE(editor.has_keyword("X", key));
    }
}

TEST_CASE("The member of a keyword is asked for before its further entries") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        GamessInput deck = deck_with(row.group);
        extra_of(deck, row.group) = {{std::string{row.keyword}, "first"},
                                     {std::string{row.keyword}, "second"}};
        CHECK(InputEditor{deck}.get_keyword(row.group, row.keyword) == "first");
        row.put(deck);
        CHECK(InputEditor{deck}.get_keyword(row.group, row.keyword) == std::string{row.written});
    }
}

TEST_CASE("An empty value is a value in a generic group") {
    const InputEditor editor{deck_of({group("X", {{"K", ""}})})};
    CHECK(editor.get_keyword("X", "K") == "");
    CHECK(editor.has_keyword("X", "K"));
}

TEST_CASE("Values that a member lacks are not there") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        CHECK_FALSE(InputEditor{deck_with(row.group)}.has_keyword(row.group, row.keyword));
    }
}

TEST_CASE("An entry list finds keywords in any case and replaces or removes them") {
    Entries entries{{" a ", "1"}, {"B", "2"}, {"A", "3"}};
    nurl::input::gamess::detail::upsert_entry(entries, "A", " new ");
    nurl::input::gamess::detail::upsert_entry(entries, "c", "4");
    CHECK(entries == Entries{{" a ", " new "}, {"B", "2"}, {"A", "3"}, {"c", "4"}});
    CHECK(nurl::input::gamess::detail::erase_entries(entries, "\ta"));
    CHECK(entries == Entries{{"B", "2"}, {"c", "4"}});
    CHECK_FALSE(nurl::input::gamess::detail::erase_entries(entries, "a"));
    CHECK(entries == Entries{{"B", "2"}, {"c", "4"}});
}
