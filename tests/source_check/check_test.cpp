#include "nurl/input/gamess/source/check.hpp"

#include <algorithm>

#include <doctest/doctest.h>

#include "source_check/found.hpp"

using namespace nurl::input::gamess;
using source::Deck;
using source::Finding;

namespace {

const std::string faulty = " $SCF wrong=1 words $END\n $MINE $END\n $SCF DIRSCF=1 $END\n";

std::vector<std::string> names_of(const std::vector<Finding>& findings) {
    std::vector<std::string> names;
    for (const Finding& finding : findings) names.push_back(finding.rule);
    return names;
}

}  // namespace

TEST_CASE("The rules are sorted by name and told in full") {
    const auto rules = source::rules();
    CHECK(std::ranges::is_sorted(rules, {}, &source::Rule::name));
    for (const source::Rule& rule : rules) {
        CAPTURE(rule.name);
        CHECK(rule.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") ==
              std::string_view::npos);
        CHECK_FALSE(rule.summary.empty());
        CHECK(rule.summary.find('\n') == std::string_view::npos);
        CHECK_FALSE(rule.summary.ends_with('.'));
        CHECK(rule.explanation.ends_with('.'));
        CHECK(rule.explanation.find('\n') == std::string_view::npos);
    }
}

TEST_CASE("A rule is found by its name in any letter case") {
    REQUIRE(source::find_rule("Missing-END") != nullptr);
    CHECK(source::find_rule("Missing-END")->name == "missing-end");
    CHECK(source::find_rule("missing") == nullptr);
    CHECK(source::find_rule("") == nullptr);
}

TEST_CASE("Findings come by place and carry their rule, its severity and their position") {
    const std::vector<Finding> findings = source::check(Deck{faulty});
    CHECK(names_of(findings) == std::vector<std::string>{"missing-molecule", "unknown-keyword",
                                                         "unknown-group", "repeated-group",
                                                         "value-type"});
    REQUIRE(findings.size() == 5);
    const Finding& finding = findings[1];
    CHECK(finding.severity == validation::Severity::Warning);
    CHECK(finding.span == source::Span{6, 11});
    CHECK(finding.position == source::Position{1, 7});
    CHECK(finding.hint.empty());
    CHECK(finding.fix.empty());
    CHECK(findings[4].position == source::Position{3, 14});
}

TEST_CASE("Findings at one place come by the name of their rule") {
    CHECK(names_of(source::check(Deck{" $VEC\n"})) ==
          std::vector<std::string>{"missing-molecule", "open-punched-group"});
}

TEST_CASE("Rules that are disabled do not run") {
    source::CheckOptions options;
    options.disabled = {"Unknown-Keyword", "missing-molecule", "nosuch", ""};
    CHECK(names_of(source::check(Deck{faulty}, options)) ==
          std::vector<std::string>{"unknown-group", "repeated-group", "value-type"});
    for (const source::Rule& rule : source::rules()) options.disabled.emplace_back(rule.name);
    CHECK(source::check(Deck{faulty}, options).empty());
}

TEST_CASE("A text without groups has no findings") {
    CHECK(source::check(Deck{""}).empty());
    CHECK(source::check(Deck{"some $ text\n"}).empty());
}

TEST_CASE("Positions count lines at LF, CR LF and lone CR") {
    CHECK(nurl::test::found("x\ry\r\nz\n $MINE $END\r $MINE $END\n", "unknown-group") ==
          nurl::test::Lines{"4:2 Section $MINE is not currently described by the GAMESS schema",
                            "5:2 Section $MINE is not currently described by the GAMESS schema"});
}
