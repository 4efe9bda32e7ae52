// The table of rules in docs/rules.md says what the library says.
#include <algorithm>
#include <array>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/core/text.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::core::text::split_lines;
using Lines = std::vector<std::string>;

namespace {

/// The rows of the table that stands under a heading of the page, without the two lines on top.
Lines rows_under(const std::string& heading) {
    const Lines lines = split_lines(nurl::test::content(NURL_TEST_RULES_PAGE));
    auto line = std::ranges::find(lines, heading);
    while (line != lines.end() && !line->starts_with('|')) ++line;
    Lines rows;
    for (; line != lines.end() && line->starts_with('|'); ++line) rows.push_back(*line);
    if (rows.size() < 2) return {};
    rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
}

std::string row_of(const source::Rule& rule) {
    constexpr std::array<std::string_view, 3> names{"info", "warning", "error"};
    const std::string_view severity = names.at(static_cast<std::size_t>(rule.severity));
    return "| `" + std::string{rule.name} + "` | " + std::string{severity} + " | " +
           std::string{rule.summary} + " |";
}

}  // namespace

TEST_CASE("The page about rules has one row for each rule, with its severity and summary") {
    Lines expected;
    for (const source::Rule& rule : source::rules()) expected.push_back(row_of(rule));
    CHECK(rows_under("## The rules") == expected);
}

TEST_CASE("The page about rules explains each rule in the words of the library") {
    const std::string page = nurl::test::content(NURL_TEST_RULES_PAGE);
    std::string text;
    for (const std::string& line : split_lines(page)) text += line + ' ';
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        CHECK(text.find("### " + std::string{rule.name} + "  " + std::string{rule.explanation}) !=
              std::string::npos);
    }
}
