/// @file
/// Differences and folds as short texts that tests can be compared with.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/wrap.hpp"

namespace nurl::test {

using Lines = std::vector<std::string>;

/// `text` in quotes with line and column, or a dash when there is no place.
[[nodiscard]] inline std::string side(
    const std::string& text, const std::optional<nurl::input::gamess::source::Position>& position) {
    if (!position) return text.empty() ? "-" : "no place for " + text;
    return '"' + text + "\"@" + std::to_string(position->line) + ':' +
           std::to_string(position->column);
}

/// One line a difference: kind, group, copy unless it is the first, key, both sides.
[[nodiscard]] inline Lines differences(const std::string& a, const std::string& b) {
    namespace source = nurl::input::gamess::source;
    constexpr const char* kinds[] = {"group", "keyword", "line"};
    Lines lines;
    for (const source::Difference& difference : source::compare(source::Deck{a}, source::Deck{b})) {
        std::string line = kinds[static_cast<std::size_t>(difference.kind)];
        line += " " + difference.group;
        if (difference.occurrence != 1) line += '#' + std::to_string(difference.occurrence);
        if (!difference.key.empty()) line += " " + difference.key;
        line += ": " + side(difference.before, difference.before_position) + " -> " +
                side(difference.after, difference.after_position);
        lines.push_back(line);
    }
    return lines;
}

/// A text with its long lines folded.
[[nodiscard]] inline std::string wrapped(const std::string& text, std::size_t columns = 80) {
    nurl::input::gamess::source::Deck deck{text};
    deck.apply(nurl::input::gamess::source::wrap(deck, columns));
    return deck.text();
}

}  // namespace nurl::test
