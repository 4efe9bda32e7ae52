// What must hold for every comparison and every fold.
#include <string>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/core/text.hpp"
#include "source/plain_decks.hpp"
#include "source_compare/comparing.hpp"
#include "source_compare/long_decks.hpp"
#include "support/deck_generator.hpp"

namespace nurl::test {

namespace {

namespace source = nurl::input::gamess::source;

rc::Gen<std::string> any_deck() {
    return rc::gen::oneOf(deck_text(), plain_deck(), long_deck(), rough_deck());
}

std::size_t some_width() { return *rc::gen::element<std::size_t>(1, 5, 10, 20, 30, 60, 80); }

}  // namespace

TEST_CASE("Every deck says the same as itself") {
    rc::check([] {
        const std::string text = *any_deck();
        RC_ASSERT(differences(text, text) == Lines{});
    });
}

TEST_CASE("Two decks differ both ways or not at all") {
    rc::check([] {
        const std::string a = *any_deck();
        const std::string b = *rc::gen::oneOf(any_deck(), rc::gen::just(wrapped(a, 10)));
        RC_ASSERT(differences(a, b).empty() == differences(b, a).empty());
    });
}

TEST_CASE("A folded deck says the same") {
    rc::check([] {
        const std::string text = *any_deck();
        RC_ASSERT(differences(text, wrapped(text, some_width())) == Lines{});
    });
}

TEST_CASE("A folded deck is not folded again") {
    rc::check([] {
        const std::size_t width = some_width();
        const std::string text = wrapped(*any_deck(), width);
        RC_ASSERT(wrapped(text, width) == text);
    });
}

TEST_CASE("Lines of words that are short enough fit after folding") {
    rc::check([] {
        for (const std::string& line : nurl::core::text::split_lines(wrapped(*long_deck(), 40)))
            RC_ASSERT(line.find_last_not_of(' ') + 1 <= 40U);
    });
}

TEST_CASE("Changing one value is one difference") {
    rc::check([] {
        source::Deck deck{*plain_deck()};
        const auto sections = deck.sections();
        RC_PRE(!sections.empty());
        const std::string name =
            (*rc::gen::elementOf(std::vector<source::Group>(sections.begin(), sections.end())))
                .name;
        const auto entries = deck.list_keywords(name);
        RC_PRE(!entries.empty());
        const auto entry = *rc::gen::elementOf(entries);
        const std::string value = *plain_value();
        RC_PRE(value != entry.value);
        const source::Deck before = deck;
        deck.set_keyword(name, entry.key, value);
        const std::vector<source::Difference> found = source::compare(before, deck);
        RC_ASSERT(found.size() == 1U);
        RC_ASSERT(found[0].kind == source::DifferenceKind::Keyword);
        RC_ASSERT(found[0].group == name);
        RC_ASSERT(found[0].key == entry.key);
        RC_ASSERT(found[0].before == entry.value);
        RC_ASSERT(found[0].after == value);
        RC_ASSERT(found[0].before_position == before.location(name, entry.key));
        RC_ASSERT(found[0].after_position == deck.location(name, entry.key));
    });
}

TEST_CASE("Changing one byte of a card is a difference") {
    rc::check([] {
        const std::string text = *rc::gen::oneOf(deck_text(), rough_deck());
        const source::Deck deck{text};
        std::vector<std::size_t> places;
        for (const source::Group& group : deck.sections()) {
            if (!group.visible || group.kind == source::GroupKind::Keywords) continue;
            for (const source::Item& item : deck.items(group)) {
                for (const source::Span word : item.words) places.push_back(word.end - 1);
                const bool has_words = item.kind != source::ItemKind::Card || !item.words.empty();
                if (!has_words && !item.span.empty()) places.push_back(item.span.begin);
            }
        }
        RC_PRE(!places.empty());
        std::string changed = text;
        changed[*rc::gen::elementOf(places)] = '~';
        RC_ASSERT(!differences(text, changed).empty());
    });
}

}  // namespace nurl::test
