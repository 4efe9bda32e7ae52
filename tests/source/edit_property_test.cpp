// What must hold for every edit of every deck.
#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "source/plain_decks.hpp"
#include "support/deck_generator.hpp"

namespace nurl::input::gamess::source {

namespace {

/// A visible keyword group of a deck, of which the last copy is closed; the property is discarded
/// when there is none.
Group pick_keyword_group(const Deck& deck) {
    std::vector<Group> groups;
    for (const Group& group : deck.sections())
        if (group.visible && group.kind == GroupKind::Keywords &&
            !deck.find_all(group.name).back().terminator.empty())
            groups.push_back(group);
    RC_PRE(!groups.empty());
    return *rc::gen::elementOf(groups);
}

/// A keyword of a group; the property is discarded when it has none.
KeyValue pick_entry(const Deck& deck, const Group& group) {
    const std::vector<KeyValue> entries = deck.list_keywords(group.name);
    RC_PRE(!entries.empty());
    return *rc::gen::elementOf(entries);
}

/// The length of the longest common beginning and, of the rest, the longest common end.
std::pair<std::size_t, std::size_t> common_ends(const std::string& a, const std::string& b) {
    std::size_t front = 0;
    const std::size_t shorter = std::min(a.size(), b.size());
    while (front < shorter && a[front] == b[front]) ++front;
    std::size_t back = 0;
    while (back < shorter - front && a[a.size() - 1 - back] == b[b.size() - 1 - back]) ++back;
    return {front, back};
}

/// Whether no line is longer than GAMESS reads.
bool fits_80_columns(const std::string& text) {
    std::size_t column = 0;
    for (const char c : text) {
        column = c == '\n' || c == '\r' ? 0 : column + 1;
        if (column > 80) return false;
    }
    return true;
}

}  // namespace

TEST_CASE("A value that was set is the value that is got") {
    CHECK(rc::check([] {
        Deck deck{*nurl::test::deck_text()};
        const Group group = pick_keyword_group(deck);
        const std::string key = *nurl::test::plain_keyword();
        const std::string value = *nurl::test::plain_value();
        try {
            deck.set_keyword(group.name, key, value);
        } catch (const std::runtime_error&) {
            RC_DISCARD("a stray = follows the value");
        }
        RC_ASSERT(deck.get_keyword(group.name, key) == value);
    }));
}

TEST_CASE("Setting the value that is there changes no byte") {
    CHECK(rc::check([] {
        const std::string text = *nurl::test::plain_deck();
        Deck deck{text};
        const Group group = pick_keyword_group(deck);
        for (const KeyValue& entry : deck.list_keywords(group.name)) {
            deck.set_keyword(group.name, entry.key, entry.value);
            RC_ASSERT(deck.text() == text);
        }
    }));
}

TEST_CASE("Setting a keyword and setting it back gives the first bytes") {
    CHECK(rc::check([] {
        const std::string text = *nurl::test::plain_deck();
        Deck deck{text};
        const Group group = pick_keyword_group(deck);
        const KeyValue entry = pick_entry(deck, group);
        deck.set_keyword(group.name, entry.key, *nurl::test::plain_value());
        deck.set_keyword(group.name, entry.key, entry.value);
        RC_ASSERT(deck.text() == text);
    }));
}

TEST_CASE("Bytes outside the value stay as they are") {
    CHECK(rc::check([] {
        const std::string text = *nurl::test::plain_deck();
        Deck deck{text};
        const Group group = pick_keyword_group(deck);
        const KeyValue entry = pick_entry(deck, group);
        const std::string value = *nurl::test::plain_value();
        const std::size_t at = text.find(entry.key + '=') + entry.key.size() + 1;
        deck.set_keyword(group.name, entry.key, value);
        const auto [front, back] = common_ends(text, deck.text());
        RC_ASSERT(front >= std::min(at, text.size()));
        RC_ASSERT(text.size() - front - back <= entry.value.size());
        RC_ASSERT(deck.text().size() - front - back <= value.size());
    }));
}

TEST_CASE("Adding a keyword and removing it gives the first bytes") {
    CHECK(rc::check([] {
        const std::string text = *nurl::test::deck_text();
        RC_PRE(fits_80_columns(text));
        Deck deck{text};
        const Group group = pick_keyword_group(deck);
        const std::string key = "QQ" + *nurl::test::plain_keyword();
        RC_ASSERT(deck.add_keyword(group.name, key, *nurl::test::plain_value(), false));
        RC_ASSERT(deck.remove_keyword(group.name, key));
        RC_ASSERT(deck.text() == text);
    }));
}

TEST_CASE("A removed keyword is gone and no other one changed") {
    CHECK(rc::check([] {
        Deck deck{*nurl::test::deck_text()};
        const Group group = pick_keyword_group(deck);
        std::vector<KeyValue> entries = deck.list_keywords(group.name);
        RC_PRE(!entries.empty());
        const auto which = *rc::gen::inRange<std::size_t>(0, entries.size());
        try {
            RC_ASSERT(deck.remove_keyword(group.name, entries[which].key));
        } catch (const std::runtime_error&) {
            RC_DISCARD("a stray = follows the keyword");
        }
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(which));
        RC_ASSERT(deck.list_keywords(group.name) == entries);
    }));
}

TEST_CASE("Header, body and terminator of the groups of any text are in order and within it") {
    CHECK(rc::check([](const std::string& noise) {
        const Deck deck{*nurl::test::deck_text() + noise + *nurl::test::deck_text()};
        std::size_t end = 0;
        for (const Group& group : deck.sections()) {
            RC_ASSERT(group.header.begin >= end);
            RC_ASSERT(group.header.end == group.body.begin);
            RC_ASSERT(group.body.begin <= group.body.end);
            RC_ASSERT(group.body.end == group.terminator.begin);
            end = group.terminator.end;
            std::size_t item_begin = group.body.begin;
            for (const Item& item : deck.items(group)) {
                RC_ASSERT(item.span.begin >= item_begin);
                RC_ASSERT(item.span.end <= group.body.end);
                RC_ASSERT(deck.location(item.span.begin) == item.position);
                item_begin = item.span.begin;
            }
        }
        RC_ASSERT(end <= deck.text().size());
    }));
}

TEST_CASE("On plain decks, reading the edited text equals editing the document that was read") {
    CHECK(rc::check([] {
        const std::string text = *nurl::test::plain_deck();
        Deck deck{text};
        const Group group = pick_keyword_group(deck);
        const std::string key = *nurl::test::plain_keyword();
        const std::string value = *nurl::test::plain_value();
        InputEditor editor{parse_string(text).input};
        if (*rc::gen::arbitrary<bool>()) {
            deck.set_keyword(group.name, key, value);
            editor.set_keyword(group.name, key, value);
        } else {
            RC_ASSERT(deck.remove_keyword(group.name, key) ==
                      editor.remove_keyword(group.name, key));
        }
        RC_ASSERT(parse_string(deck.text()).input == editor.input());
    }));
}

}  // namespace nurl::input::gamess::source
