#include "corpus/corpus.hpp"

#include <string>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "source_compare/comparing.hpp"

using namespace nurl::test;

TEST_SUITE_BEGIN("real decks" * doctest::skip(!has_corpus()));

TEST_CASE("A real deck says the same as itself") {
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        CHECK(differences(deck.text, deck.text) == Lines{});
    }
}

TEST_CASE("A real deck with its long lines folded says the same, and is not folded again") {
    std::size_t folded = 0;
    for (const Deck& deck : corpus()) {
        CAPTURE(deck.name);
        const std::string text = wrapped(deck.text);
        CHECK(differences(deck.text, text) == Lines{});
        CHECK(wrapped(text) == text);
        folded += text == deck.text ? 0U : 1U;
    }
    CHECK(folded > 0);
}

TEST_CASE("A real deck folded to a few columns says the same") {
    for (const Deck& deck : corpus()) {
        for (const std::size_t columns : {1U, 8U, 20U, 40U}) {
            CAPTURE(deck.name);
            CAPTURE(columns);
            const std::string text = wrapped(deck.text, columns);
            CHECK(differences(deck.text, text) == Lines{});
            CHECK(wrapped(text, columns) == text);
        }
    }
}

TEST_SUITE_END();
