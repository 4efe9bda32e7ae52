/// @file
/// Findings as text, for comparison with expected values.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::test {

using Lines = std::vector<std::string>;

/// A deck and what one rule finds in it.
struct FindingRow {
    std::string name;
    std::string text;
    Lines findings;  ///< each as `found` gives it
};

/// What a rule finds in a text, each as "line:column message", with " | " and the hint behind it
/// when there is one.
[[nodiscard]] Lines found(std::string_view text, std::string_view rule);

/// A text with the fixes of all findings of a rule, applied one after another, each to the findings
/// of the text so far.
[[nodiscard]] std::string fixed(std::string_view text, std::string_view rule);

/// Compares what a rule finds with each row of a table.
void check_rows(std::string_view rule, const std::vector<FindingRow>& rows);

/// All findings of a deck as the golden files have them: place, severity, message and rule on one
/// line; the hint and the text that the fix makes on lines of their own, indented.
[[nodiscard]] std::string golden_text(const input::gamess::source::Deck& deck);

}  // namespace nurl::test
