// What is found in real decks is what the page about rules says. The counts tell a rule that has
// begun to complain of good decks, or to miss what it found.
#include "corpus/corpus.hpp"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::corpus;
using nurl::test::has_corpus;
using Lines = std::vector<std::string>;

namespace {

/// How often a rule finds something, and in how many decks.
struct Tally {
    std::size_t findings = 0;
    std::set<std::string> decks;
};

std::map<std::string, Tally> tally_of_corpus() {
    std::map<std::string, Tally> tallies;
    for (const nurl::test::Deck& deck : corpus()) {
        for (const source::Finding& finding : source::check(source::Deck{deck.text})) {
            Tally& tally = tallies[finding.rule];
            ++tally.findings;
            tally.decks.insert(deck.name);
        }
    }
    return tallies;
}

std::string row_of(const std::string& rule, const Tally& tally) {
    constexpr std::array<std::string_view, 3> names{"info", "warning", "error"};
    const auto severity = static_cast<std::size_t>(source::find_rule(rule)->severity);
    return "| `" + rule + "` | " + std::string{names.at(severity)} + " | " +
           std::to_string(tally.findings) + " | " + std::to_string(tally.decks.size()) + " |";
}

/// The rows of the table under a heading of the page, without the two lines on top.
Lines rows_under(const std::string& heading) {
    const Lines lines = nurl::core::text::split_lines(nurl::test::content(NURL_TEST_RULES_PAGE));
    auto line = std::ranges::find(lines, heading);
    while (line != lines.end() && !line->starts_with('|')) ++line;
    Lines rows;
    for (; line != lines.end() && line->starts_with('|'); ++line) rows.push_back(*line);
    if (rows.size() < 2) return {};
    rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
}

}  // namespace

TEST_SUITE_BEGIN("real decks" * doctest::skip(!has_corpus()));

TEST_CASE("The rules find in real decks what the page about rules says") {
    Lines expected;
    for (const auto& [rule, tally] : tally_of_corpus()) expected.push_back(row_of(rule, tally));
    CHECK(rows_under("## What they find in real decks") == expected);
}

TEST_CASE("The fixes of findings in real decks can be applied, and their rule finds less") {
    for (const nurl::test::Deck& deck : corpus()) {
        CAPTURE(deck.name);
        const source::Deck original{deck.text};
        const auto findings = source::check(original);
        for (const source::Finding& finding : findings) {
            if (finding.fix.empty()) continue;
            source::Deck mended = original;
            mended.apply(finding.fix);
            CHECK(std::ranges::count(source::check(mended), finding.rule, &source::Finding::rule) <
                  std::ranges::count(findings, finding.rule, &source::Finding::rule));
        }
    }
}

TEST_SUITE_END();
