#include <algorithm>
#include <string>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "editor/edit_result.hpp"
#include "editor/editor_names.hpp"
#include "editor/setting.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/deck_generator.hpp"
#include "support/groups.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::KeyValue;
using nurl::input::gamess::NamedSection;
using nurl::input::gamess::detail::editor_key_name;
using nurl::test::after_remove;
using nurl::test::after_set;
using nurl::test::document;
using nurl::test::EditResult;
using nurl::test::Entries;
using nurl::test::expected_value;
using nurl::test::Setting;

namespace {

/// Keywords with the runs of blanks in their values made single, as edits leave raw lines.
Entries with_single_blanks(Entries entries) {
    for (KeyValue& entry : entries) {
        std::ranges::replace(entry.value, '\t', ' ');
        const auto is_run = [](char a, char b) { return a == ' ' && b == ' '; };
        entry.value.erase(std::unique(entry.value.begin(), entry.value.end(), is_run),
                          entry.value.end());
    }
    return entries;
}

/// The keywords of a group but for one.
Entries others(const GamessInput& deck, const Setting& setting) {
    Entries entries = with_single_blanks(InputEditor{deck}.list_keywords(setting.group));
    std::erase_if(entries, [&setting](const KeyValue& entry) {
        return editor_key_name(entry.key) == setting.bare_key;
    });
    return entries;
}

/// A document with one group emptied: all that an edit of it may not change.
GamessInput without_group(GamessInput deck, const Setting& setting) {
    if (setting.bare_group == "CONTRL") {
        deck.has_control = false;
        deck.control = {};
    }
    if (setting.bare_group == "SYSTEM") deck.system.reset();
    if (setting.bare_group == "BASIS") deck.basis.reset();
    if (setting.bare_group == "SCF") deck.scf.reset();
    if (setting.bare_group == "GUESS") deck.guess.reset();
    const NamedSection empty{setting.bare_group, {}, {}};
    NamedSection* const group = deck.find_section(setting.bare_group);
    if (group != nullptr && !setting.is_structured) *group = empty;
    std::erase(deck.sections, empty);
    std::erase(deck.extra_sections, empty);
    return deck;
}

}  // namespace

TEST_CASE("A keyword that was set is given back as its group holds it") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        RC_PRE(!setting.bare_value.empty());
        const InputEditor editor{after_set(before, setting.group, setting.key, setting.value)};
        RC_CLASSIFY(setting.member.has_value(), "has a member");
        RC_CLASSIFY(InputEditor{before}.has_keyword(setting.group, setting.key), "was there");
        RC_ASSERT(editor.get_keyword(setting.group, setting.key) ==
                  expected_value(before, setting));
        RC_ASSERT(editor.has_keyword(setting.bare_group, setting.bare_key));
        RC_ASSERT(editor.has_section(setting.group));
    }));
}

TEST_CASE("Setting a keyword twice is setting it once") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        const GamessInput once = after_set(before, setting.group, setting.key, setting.value);
        RC_ASSERT(after_set(once, setting.bare_group, setting.bare_key, setting.value) == once);
    }));
}

TEST_CASE("Setting a keyword leaves the other keywords of its group in their order") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        const GamessInput after = after_set(before, setting.group, setting.key, setting.value);
        RC_ASSERT(others(after, setting) == others(before, setting));
    }));
}

TEST_CASE("Setting a keyword leaves all other groups alone") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        const GamessInput after = after_set(before, setting.group, setting.key, setting.value);
        RC_ASSERT(without_group(after, setting) == without_group(before, setting));
    }));
}

TEST_CASE("Removing a keyword that was missing before it was set restores the list") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        const InputEditor old{before};
        RC_PRE(!old.has_keyword(setting.group, setting.key));
        const EditResult removal =
            after_remove(after_set(before, setting.group, setting.key, setting.value),
                         setting.group, setting.key);
        RC_ASSERT(removal.result);
        RC_ASSERT(with_single_blanks(InputEditor{removal.deck}.list_keywords(setting.group)) ==
                  with_single_blanks(old.list_keywords(setting.group)));
    }));
}

TEST_CASE("Removing a keyword until nothing is removed leaves none and keeps the others") {
    CHECK(rc::check([] {
        const GamessInput before = *document();
        const Setting setting(before);
        EditResult removal = after_remove(before, setting.group, setting.key);
        RC_ASSERT(removal.result == InputEditor{before}.has_keyword(setting.group, setting.key));
        if (removal.result) removal = after_remove(removal.deck, setting.group, setting.key);
        if (removal.result) removal = after_remove(removal.deck, setting.group, setting.key);
        RC_ASSERT(!removal.result);
        RC_ASSERT(!InputEditor{removal.deck}.has_keyword(setting.group, setting.key));
        RC_ASSERT(others(removal.deck, setting) == others(before, setting));
        RC_ASSERT(without_group(removal.deck, setting) == without_group(before, setting));
    }));
}

TEST_CASE("Adding a keyword is setting it exactly when it is missing or may be replaced") {
    CHECK(rc::check([](bool replace) {
        const GamessInput before = *document();
        const Setting setting(before);
        const bool is_set = replace || !InputEditor{before}.has_keyword(setting.group, setting.key);
        InputEditor editor{before};
        RC_ASSERT(editor.add_keyword(setting.group, setting.key, setting.value, replace) == is_set);
        RC_ASSERT(editor.input() ==
                  (is_set ? after_set(before, setting.group, setting.key, setting.value) : before));
    }));
}
