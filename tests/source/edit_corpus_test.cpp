// Every keyword of every real deck is set, set back, and removed.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "corpus/corpus.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/source/wrap.hpp"

using namespace nurl::input::gamess;

namespace {

using Source = source::Deck;

/// The keyword groups of a deck by name, each once.
std::vector<std::string> keyword_groups(const Source& deck) {
    std::vector<std::string> names;
    for (const source::Group& group : deck.sections())
        if (group.visible && group.kind == source::GroupKind::Keywords &&
            !deck.find_all(group.name).back().terminator.empty())
            names.push_back(group.name);
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

/// The keyword item whose value counts.
source::Item counting_item(const Source& deck, const std::string& group, const KeyValue& entry) {
    source::Item found;
    for (const source::Group& copy : deck.find_all(group))
        for (const source::Item& item : deck.items(copy))
            if (item.key == entry.key) found = item;
    return found;
}

/// The length of what differs between two texts in the first one: from the first byte that differs
/// to the last.
std::size_t changed_bytes(std::string_view before, std::string_view after) {
    const auto [a, b] = std::ranges::mismatch(before, after);
    before.remove_prefix(static_cast<std::size_t>(a - before.begin()));
    after.remove_prefix(static_cast<std::size_t>(b - after.begin()));
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before.remove_suffix(1);
        after.remove_suffix(1);
    }
    return before.size();
}

/// The length of the line on which an item begins.
std::size_t line_length(const Source& deck, const source::Item& item) {
    const std::size_t begin = item.span.begin + 1 - item.position.column;
    return std::min(deck.text().find_first_of("\r\n", begin), deck.text().size()) - begin;
}

/// Counts over all decks.
struct Totals {
    std::size_t sets = 0;
    std::size_t value_bytes = 0;
    std::size_t changed = 0;
    std::size_t other_layouts = 0;
};

void set_and_set_back(const Source& deck, const std::string& group, const KeyValue& entry,
                      Totals& totals) {
    Source edited = deck;
    edited.set_keyword(group, entry.key, entry.value);
    CHECK(edited.text() == deck.text());
    const source::Item item = counting_item(deck, group, entry);
    edited.set_keyword(group, entry.key, "77");
    CHECK(edited.get_keyword(group, entry.key) == "77");
    const std::size_t changed = changed_bytes(deck.text(), edited.text());
    CHECK(changed <= item.value.size());
    ++totals.sets;
    totals.value_bytes += item.value.size();
    totals.changed += changed;
    edited.set_keyword(group, entry.key, entry.value);
    // A list that went on in further lines comes back on one, and a line that was too long folded.
    const bool on_one_line = deck.text(item.value).find_first_of("\r\n!") == std::string_view::npos;
    if (on_one_line && line_length(deck, item) <= source::line_width)
        CHECK(edited.text() == deck.text());
    if (edited.text() != deck.text()) ++totals.other_layouts;
}

}  // namespace

TEST_SUITE_BEGIN("real decks" * doctest::skip(!nurl::test::has_corpus()));

TEST_CASE("Setting any keyword of a real deck changes no byte outside its value") {
    Totals totals;
    for (const nurl::test::Deck& real : nurl::test::corpus()) {
        CAPTURE(real.name);
        const Source deck{real.text};
        for (const std::string& group : keyword_groups(deck))
            for (const KeyValue& entry : deck.list_keywords(group)) {
                CAPTURE(entry.key);
                if (!entry.value.empty()) set_and_set_back(deck, group, entry, totals);
            }
    }
    MESSAGE(totals.sets << " sets: " << totals.changed << " bytes changed, the values have "
                        << totals.value_bytes << "; after setting back, " << totals.other_layouts
                        << " values stand in another layout");
}

TEST_CASE("Adding a keyword to any group of a real deck and removing it gives the same bytes") {
    for (const nurl::test::Deck& real : nurl::test::corpus()) {
        CAPTURE(real.name);
        const Source deck{real.text};
        for (const std::string& group : keyword_groups(deck)) {
            CAPTURE(group);
            Source edited = deck;
            CHECK(edited.add_keyword(group, "ZZZZZZ", "1", false));
            CHECK(edited.text() != real.text);
            CHECK(edited.remove_keyword(group, "ZZZZZZ"));
            CHECK(edited.text() == real.text);
        }
    }
}

TEST_CASE("Removing any keyword of a real deck leaves all others as they read") {
    for (const nurl::test::Deck& real : nurl::test::corpus()) {
        CAPTURE(real.name);
        const Source deck{real.text};
        for (const std::string& group : keyword_groups(deck)) {
            std::vector<KeyValue> entries = deck.list_keywords(group);
            for (std::size_t i = 0; i < entries.size(); ++i) {
                Source edited = deck;
                CHECK(edited.remove_keyword(group, entries[i].key));
                std::vector<KeyValue> others = entries;
                others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
                CHECK(edited.list_keywords(group) == others);
            }
        }
    }
}

TEST_SUITE_END();
