#include <cstdint>
#include <type_traits>

#include <doctest/doctest.h>

#include "validation/findings.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::validation::Issue;
using nurl::input::gamess::validation::Options;
using nurl::input::gamess::validation::Severity;
using nurl::test::findings;
using nurl::test::Issues;
using nurl::test::raw_text;
using nurl::test::unknown_group;
using nurl::test::unknown_keyword;

static_assert(std::is_same_v<std::underlying_type_t<Severity>, std::int32_t>);
static_assert(static_cast<int>(Severity::Info) == 0);
static_assert(static_cast<int>(Severity::Warning) == 1);
static_assert(static_cast<int>(Severity::Error) == 2);
static_assert(std::is_aggregate_v<Issue> && std::is_aggregate_v<Options>);
static_assert(sizeof(Options) == 3);

TEST_CASE("All three checks run unless they are switched off") {
    const Options options;
    CHECK(options.report_unknown_sections);
    CHECK(options.report_unknown_keywords);
    CHECK(options.report_raw_text_in_structured);
}

TEST_CASE("The members of options and findings stand in the order that aggregates rely on") {
    const Options options{true, false, false};
    CHECK(options.report_unknown_sections);
    CHECK_FALSE(options.report_unknown_keywords);
    CHECK_FALSE(Options{false, false, true}.report_unknown_keywords);
    CHECK(Options{false, false, true}.report_raw_text_in_structured);
    const Issue issue{Severity::Error, "group", "KEY", "text"};
    CHECK(issue.section == "group");
    CHECK(issue.key == "KEY");
    CHECK(issue.message == "text");
}

TEST_CASE("Each switch of eight combinations adds the findings of its own severity") {
    GamessInput input;
    input.has_control = true;
    input.control.extra = {{"LIFTED", "1"}};
    input.sections = {{"CONTRL", {{"FOO", "1"}}, {"junk BAR=2"}}, {"NOSUCH", {{"FOO", "1"}}, {}}};
    input.extra_sections = {{"ALSONOT", {}, {"junk"}}, {"PCM", {{"BAZ", "1"}}, {"junk"}}};
    const Issues all{unknown_keyword("contrl", "LIFTED"),
                     unknown_keyword("contrl", "FOO"),
                     raw_text("contrl"),
                     unknown_keyword("contrl", "BAR"),
                     unknown_group("nosuch"),
                     unknown_group("alsonot"),
                     unknown_keyword("pcm", "BAZ")};
    for (const bool sections : {false, true}) {
        for (const bool keywords : {false, true}) {
            for (const bool text : {false, true}) {
                CAPTURE(sections);
                CAPTURE(keywords);
                CAPTURE(text);
                Issues expected;
                for (const Issue& issue : all)
                    if ((issue.severity == Severity::Info && sections) ||
                        (issue.severity == Severity::Warning && keywords) ||
                        (issue.severity == Severity::Error && text))
                        expected.push_back(issue);
                CHECK(findings(input, {sections, keywords, text}) == expected);
            }
        }
    }
}
