/// @file
/// The outcome of one edit.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::test {

/// The text of a deck with one keyword set; the message behind "refused: " when that throws.
[[nodiscard]] inline std::string after_set(const std::string& text, std::string_view section,
                                           std::string_view key, std::string_view value) {
    nurl::input::gamess::source::Deck deck{text};
    try {
        deck.set_keyword(section, key, value);
    } catch (const std::exception& error) {
        return deck.text() == text ? "refused: " + std::string{error.what()} : "changed and threw";
    }
    return deck.text();
}

/// A deck and what it is once a keyword of `$SCF` is set.
struct SetCase {
    const char* name;
    std::string before;
    std::string key;
    std::string value;
    std::string after;  ///< as `after_set` gives it
};

inline void check_settings(const std::vector<SetCase>& cases) {
    for (const SetCase& row : cases) {
        CAPTURE(row.name);
        CHECK(after_set(row.before, "SCF", row.key, row.value) == row.after);
    }
}

/// The text of a deck with one keyword removed.
[[nodiscard]] inline std::string after_removal(const std::string& text, std::string_view section,
                                               std::string_view key) {
    nurl::input::gamess::source::Deck deck{text};
    const bool removed = deck.remove_keyword(section, key);
    return removed == (deck.text() != text) ? deck.text() : "the answer does not fit";
}

}  // namespace nurl::test
