#include <type_traits>
#include <utility>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/validation.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::parse_string;
using nurl::input::gamess::validation::Options;
using nurl::input::gamess::validation::validate;
using nurl::test::deck_of;
using nurl::test::group;

namespace {

/// A deck with something in every part, written so that canonical text differs.
GamessInput odd_deck() {
    GamessInput deck = parse_string(
                           " $contrl scftyp=uhf foo=1 stray\n $end\n"
                           " $scf dirscf=0 $end\n $pcm a=1 \n ! note b=2\n $end\n"
                           " $nosuch x=1 $end\n"
                           " $data\n title\n c1\n o 8 0 0 0\n $end\n")
                           .input;
    deck.extra_sections = {group(" $odd ", {{" key ", " value "}}, {"raw  line"})};
    return deck;
}

}  // namespace

TEST_CASE("The editor holds the document as it came") {
    const InputEditor editor{odd_deck()};
    CHECK(editor.input() == odd_deck());
}

TEST_CASE("The editor takes the document over without copying it") {
    GamessInput deck = deck_of({group("X", {{"A", "1"}})});
    const auto* const groups = deck.sections.data();
    InputEditor editor{std::move(deck)};
    CHECK(editor.input().sections.data() == groups);
    const GamessInput taken = std::move(editor).take();
    CHECK(taken.sections.data() == groups);
    CHECK(taken == deck_of({group("X", {{"A", "1"}})}));
}

TEST_CASE("Nothing can fail when the document goes in and out") {
    CHECK(std::is_nothrow_constructible_v<InputEditor, GamessInput&&>);
    CHECK(noexcept(std::declval<const InputEditor&>().input()));
    CHECK(noexcept(std::declval<InputEditor>().take()));
}

TEST_CASE("A document that is edited and taken out carries the edits") {
    InputEditor editor{odd_deck()};
    editor.set_keyword("PCM", "A", "2");
    GamessInput expected = odd_deck();
    expected.find_section("PCM")->entries = {{"A", "2"}, {"B", "2"}};
    expected.find_section("PCM")->raw_lines = {"! note"};
    CHECK(std::move(editor).take() == expected);
}

TEST_CASE("Two editors of one document know nothing of each other") {
    const GamessInput deck = odd_deck();
    InputEditor one{deck};
    const InputEditor other{deck};
    one.set_keyword("PCM", "A", "2");
    CHECK(other.input() == deck);
    CHECK(deck == odd_deck());
}

TEST_CASE("Asking changes nothing") {
    const InputEditor editor{odd_deck()};
    for (const char* name : {"CONTRL", "SYSTEM", "SCF", "PCM", "ODD", "DATA", "", "NONE"}) {
        static_cast<void>(editor.has_section(name));
        static_cast<void>(editor.list_keywords(name));
        static_cast<void>(editor.get_keyword(name, "A"));
        static_cast<void>(editor.has_keyword(name, "A"));
        static_cast<void>(editor.render_section(name));
    }
    static_cast<void>(editor.section_names());
    static_cast<void>(editor.validate({}));
    CHECK(editor.input() == odd_deck());
}

TEST_CASE("Validation gives the findings of the document for the checks asked for") {
    const InputEditor editor{odd_deck()};
    REQUIRE(editor.validate({}).size() >= 3);
    for (const Options& options :
         {Options{}, Options{false, true, true}, Options{true, false, true},
          Options{true, true, false}, Options{false, false, false}}) {
        CHECK(editor.validate(options) == validate(odd_deck(), options));
    }
    CHECK(editor.validate({false, false, false}).empty());
}

TEST_CASE("Validation sees the edits") {
    InputEditor editor{GamessInput{}};
    CHECK(editor.validate({}).empty());
    editor.set_keyword("NOSUCH", "X", "1");
    REQUIRE(editor.validate({}).size() == 1);
    CHECK(editor.validate({}).front().section == "nosuch");
    CHECK(editor.remove_section("NOSUCH"));
    CHECK(editor.validate({}).empty());
}
