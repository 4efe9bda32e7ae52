/// @file
/// The items of a group as a short text that tests can be compared with.
#pragma once

#include <string>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::test {

/// The items of the first group of a deck, one behind the other with a space between them:
/// `KEY=word|word`, `!comment`, `<separator>`, `"text"`, `[word|word]` for a card, and `[text]` for
/// a card that has no words.
[[nodiscard]] inline std::string items_text(const nurl::input::gamess::source::Deck& deck) {
    using nurl::input::gamess::source::ItemKind;
    std::string text;
    for (const auto& item : deck.items(deck.sections()[0])) {
        const std::string whole{deck.text(item.span)};
        std::string words;
        for (const auto word : item.words) {
            if (!words.empty()) words += '|';
            words += deck.text(word);
        }
        if (!text.empty()) text += ' ';
        if (item.kind == ItemKind::Keyword) text += item.key + '=' + words;
        if (item.kind == ItemKind::Comment) text += whole;
        if (item.kind == ItemKind::Separator) text += '<' + whole + '>';
        if (item.kind == ItemKind::Text) text += '"' + whole + '"';
        if (item.kind == ItemKind::Card) text += '[' + (words.empty() ? whole : words) + ']';
    }
    return text;
}

}  // namespace nurl::test
