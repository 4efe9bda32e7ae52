// For each rule a deck that trips it, what is found there, and a deck that comes near to it. To
// renew the findings after a change, run the tests once with NURL_TEST_REFRESH_GOLDEN=1 in the
// environment and look at the difference.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "source_check/found.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::content;
using source::Deck;
using source::Finding;

namespace {

std::filesystem::path golden(std::string_view rule, std::string_view suffix) {
    return std::filesystem::path{NURL_TEST_CHECK_GOLDEN} /
           (std::string{rule} + std::string{suffix});
}

Deck golden_deck(std::string_view rule, std::string_view suffix) {
    return Deck{content(golden(rule, suffix))};
}

bool refreshes_golden() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tests have one thread
    return std::getenv("NURL_TEST_REFRESH_GOLDEN") != nullptr;
}

bool is_found(const std::vector<Finding>& findings, std::string_view rule) {
    return std::ranges::find(findings, rule, &Finding::rule) != findings.end();
}

}  // namespace

TEST_CASE("What is found in the deck that trips a rule is what it was") {
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        const std::string text = nurl::test::golden_text(golden_deck(rule.name, ".trips.inp"));
        const std::filesystem::path file = golden(rule.name, ".trips.findings");
        if (refreshes_golden()) nurl::test::make_file(file, text);
        CHECK(text == content(file));
    }
}

TEST_CASE("Each rule finds something in the deck that trips it and nothing in the one near to it") {
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        CHECK(is_found(source::check(golden_deck(rule.name, ".trips.inp")), rule.name));
        CHECK_FALSE(is_found(source::check(golden_deck(rule.name, ".quiet.inp")), rule.name));
    }
}

TEST_CASE("The deck near to a rule is a good one: no rule finds more than a note in it") {
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        for (const Finding& finding : source::check(golden_deck(rule.name, ".quiet.inp")))
            CHECK_MESSAGE(finding.severity == validation::Severity::Info, finding.message);
    }
}

TEST_CASE("There are three golden files for each rule and no others") {
    std::set<std::string> expected;
    for (const source::Rule& rule : source::rules())
        for (const std::string_view suffix : {".trips.inp", ".trips.findings", ".quiet.inp"})
            expected.insert(golden(rule.name, suffix).filename().string());
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator{NURL_TEST_CHECK_GOLDEN})
        files.insert(entry.path().filename().string());
    CHECK(files == expected);
}

TEST_CASE("A deck with the fixes of a finding does not trip its rule there any more") {
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        const std::string text = content(golden(rule.name, ".trips.inp"));
        const std::string mended = nurl::test::fixed(text, rule.name);
        if (mended == text) continue;
        CHECK(nurl::test::found(mended, rule.name).size() <
              nurl::test::found(text, rule.name).size());
    }
}
