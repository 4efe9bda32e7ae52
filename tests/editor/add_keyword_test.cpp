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
using nurl::test::EditResult;
using nurl::test::group;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

EditResult after_add(const GamessInput& deck, std::string_view section, std::string_view key,
                     std::string_view value, bool replace) {
    InputEditor editor{deck};
    const bool result = editor.add_keyword(section, key, value, replace);
    return {result, std::move(editor).take()};
}

}  // namespace

TEST_CASE("A keyword that is missing is always added") {
    for (const bool replace : {false, true}) {
        CAPTURE(replace);
        const GamessInput deck = deck_of({group("X", {{"A", "1"}})});
        CHECK(after_add(deck, " $x", "k", " v ", replace) ==
              EditResult{true, after_set(deck, "X", "K", "v")});
        CHECK(after_add(deck, "NEW", "k", "v", replace) ==
              EditResult{true, after_set(deck, "NEW", "K", "v")});
        CHECK(after_add(deck, "SCF", "diis", "t", replace) ==
              EditResult{true, after_set(deck, "SCF", "DIIS", "T")});
    }
}

TEST_CASE("A keyword that is there is left alone unless it may be replaced") {
    const GamessInput deck = deck_of({group("X", {{" k", "old"}}, {"  R=1  text "})});
    for (const char* key : {"K", "k", " K\t", "R", "r"}) {
        CAPTURE(key);
        CHECK(after_add(deck, "$x", key, "new", false) == EditResult{false, deck});
        CHECK(after_add(deck, "$x", key, "new", true) ==
              EditResult{true, after_set(deck, "X", key, "new")});
    }
}

TEST_CASE("A member that is given is left alone unless it may be replaced") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        GamessInput deck = deck_with(row.group);
        row.put(deck);
        CHECK(after_add(deck, row.group, row.keyword, "7", false) == EditResult{false, deck});
        CHECK(after_add(deck, row.group, row.keyword, "7", true) ==
              EditResult{true, after_set(deck, row.group, row.keyword, "7")});
    }
}

TEST_CASE("A further entry that is there is left alone unless it may be replaced") {
    GamessInput deck = deck_with("SCF");
    deck.scf->extra = {{"diis", "0"}};
    CHECK(after_add(deck, "SCF", "DIIS", "T", false) == EditResult{false, deck});
    CHECK(after_add(deck, "SCF", "DIIS", "T", true) ==
          EditResult{true, after_set(deck, "SCF", "DIIS", "T")});
}

TEST_CASE("A keyword that is not listed counts as missing") {
    GamessInput absent;
    absent.control.has_mult = true;
    CHECK(after_add(absent, "CONTRL", "MULT", "2", false) ==
          EditResult{true, after_set(absent, "CONTRL", "MULT", "2")});
    GamessInput blank = deck_with("GUESS");
    blank.guess->guess = " ";
    CHECK(after_add(blank, "GUESS", "GUESS", "huckel", false) ==
          EditResult{true, after_set(blank, "GUESS", "GUESS", "HUCKEL")});
}

TEST_CASE("An empty value counts as there in a generic group") {
    const GamessInput deck = deck_of({group("X", {{"K", ""}})});
    CHECK(after_add(deck, "X", "K", "new", false) == EditResult{false, deck});
}
