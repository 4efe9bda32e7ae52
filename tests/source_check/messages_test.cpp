// The three findings of validation and those of check say the same.
#include "validation/messages.hpp"

#include <algorithm>

#include <doctest/doctest.h>

#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/validation.hpp"

using namespace nurl::input::gamess;

namespace {

/// The message of a rule about a text; empty when the rule finds nothing.
std::string check_message(const std::string& text, std::string_view rule) {
    const auto findings = source::check(source::Deck{text});
    const auto hit = std::ranges::find(findings, rule, &source::Finding::rule);
    return hit == findings.end() ? "" : hit->message;
}

/// Whether validation has a finding of that severity and message about a text.
bool validation_says(const std::string& text, validation::Severity severity,
                     const std::string& message) {
    const auto issues = validation::validate(parse_string(text).input, {});
    return std::ranges::any_of(issues, [&](const validation::Issue& issue) {
        return issue.severity == severity && issue.message == message;
    });
}

}  // namespace

TEST_CASE("Unknown groups, unknown keywords and free text are told as validation tells them") {
    struct Row {
        std::string text;
        std::string rule;
    };
    for (const Row& row : {Row{" $mine A=1 $END\n", "unknown-group"},
                           Row{" $SCF wrong(2)=1 $END\n", "unknown-keyword"},
                           Row{" $SCF words\n $END\n", "stray-text"}}) {
        CAPTURE(row.rule);
        const std::string message = check_message(row.text, row.rule);
        CHECK_FALSE(message.empty());
        CHECK(validation_says(row.text, source::find_rule(row.rule)->severity, message));
    }
}

TEST_CASE("The messages of validation are what they were") {
    CHECK(validation::unknown_section_message("mine") ==
          "Section $MINE is not currently described by the GAMESS schema");
    CHECK(validation::unknown_keyword_message("scf", "WRONG") ==
          "Keyword 'WRONG' is not currently described by the schema for section $SCF");
    CHECK(validation::raw_text_message("scf") ==
          "Structured section $SCF still contains non-keyword raw text");
}
