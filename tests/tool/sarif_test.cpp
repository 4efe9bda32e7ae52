#include "sarif.hpp"

#include <doctest/doctest.h>
#include <nlohmann/json.hpp>

#include "nurl/input/gamess/source/check.hpp"
#include "tool/workplace.hpp"

using gms_inp::uri_of;
using nlohmann::json;
using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

json log_of(const Outcome& outcome) { return json::parse(outcome.out); }

Outcome check(const Workplace& place, const std::string& file) {
    return place.run({"check", "--format", "sarif", "--disable", "missing-molecule", file});
}

}  // namespace

TEST_CASE("The log names version, schema and tool with all rules") {
    const Workplace place;
    place.make("a.inp", " $CONTRL SCFTYP=RHF $END\n");
    const Outcome outcome = check(place, "a.inp");
    CHECK(outcome.status == 0);
    const json log = log_of(outcome);
    CHECK(log["version"] == "2.1.0");
    CHECK(log["$schema"].get<std::string>().ends_with("/sarif-schema-2.1.0.json"));
    REQUIRE(log["runs"].size() == 1);
    const json& run = log["runs"][0];
    CHECK(run["results"] == json::array());
    CHECK(run["invocations"] == json::parse(R"([{"executionSuccessful": true}])"));
    const json& driver = run["tool"]["driver"];
    CHECK(driver["name"] == "gms-inp");
    CHECK(driver["version"] == NURL_TEST_TOOL_VERSION);
    const auto rules = nurl::input::gamess::source::rules();
    REQUIRE(driver["rules"].size() == rules.size());
    for (std::size_t i = 0; i < rules.size(); ++i) {
        CHECK(driver["rules"][i]["id"] == rules[i].name);
        CHECK(driver["rules"][i]["shortDescription"]["text"] == rules[i].summary);
        CHECK(driver["rules"][i]["fullDescription"]["text"] == rules[i].explanation);
    }
}

TEST_CASE("A rule has a level that SARIF knows") {
    const Workplace place;
    place.make("a.inp", " $CONTRL SCFTYP=RHF $END\n");
    const json log = log_of(check(place, "a.inp"));
    for (const json& rule : log["runs"][0]["tool"]["driver"]["rules"]) {
        const json& level = rule["defaultConfiguration"]["level"];
        CAPTURE(rule["id"].get<std::string>());
        if (rule["id"] == "unknown-group") CHECK(level == "note");
        if (rule["id"] == "unknown-keyword") CHECK(level == "warning");
        if (rule["id"] == "missing-end") CHECK(level == "error");
        CHECK((level == "note" || level == "warning" || level == "error"));
    }
}

TEST_CASE("A finding has its place, and a safe remedy is a fix") {
    const Workplace place;
    place.make("my deck.inp", "note\n$SCF DIRSCF=.T. $END\n");
    const Outcome outcome = check(place, "my deck.inp");
    CHECK(outcome.status == 1);
    CHECK(outcome.err.empty());
    CHECK(log_of(outcome)["runs"][0]["results"] == json::parse(R"([{
      "ruleId": "header-column",
      "level": "error",
      "message": {
        "text": "GAMESS does not find $SCF: its $ must stand in column 2, behind one space"},
      "locations": [{"physicalLocation": {
        "artifactLocation": {"uri": "my%20deck.inp"},
        "region": {"startLine": 2, "startColumn": 1, "endLine": 2, "endColumn": 5}}}],
      "fixes": [{"artifactChanges": [{
        "artifactLocation": {"uri": "my%20deck.inp"},
        "replacements": [{
          "deletedRegion": {"startLine": 2, "startColumn": 1, "endLine": 2, "endColumn": 1},
          "insertedContent": {"text": " "}}]}]}]
    }])"));
}

TEST_CASE("A finding without remedy has no fix, and its hint is part of the message") {
    const Workplace place;
    const json log =
        log_of(place.run({"check", "--format", "sarif", "--disable", "missing-molecule", "-"},
                         {.input = " $CONTRL RUNTPY=ENERGY $END\n"}));
    CHECK(log["runs"][0]["results"] == json::parse(R"([{
      "ruleId": "unknown-keyword",
      "level": "warning",
      "message": {
        "text": "Keyword 'RUNTPY' is not currently described by the schema for section $CONTRL; did you mean RUNTYP?"},
      "locations": [{"physicalLocation": {
        "artifactLocation": {"uri": "stdin"},
        "region": {"startLine": 1, "startColumn": 10, "endLine": 1, "endColumn": 16}}}]
    }])"));
}

TEST_CASE("A deck that cannot be read makes the run a failed one") {
    const Workplace place;
    const Outcome outcome = check(place, "missing.inp");
    CHECK(outcome.status == 2);
    CHECK(outcome.err == "gms-inp: error: cannot read missing.inp: No such file or directory\n");
    CHECK(log_of(outcome)["runs"][0]["invocations"] == json::parse(R"([{
      "executionSuccessful": false,
      "toolExecutionNotifications": [{
        "level": "error",
        "message": {"text": "cannot read missing.inp: No such file or directory"}}]
    }])"));
}

TEST_CASE("A relative path is a relative reference with odd characters encoded") {
    CHECK(uri_of("water.inp") == "water.inp");
    CHECK(uri_of("decks/my deck#1.inp") == "decks/my%20deck%231.inp");
    CHECK(uri_of("a:b%c\xC3\xA9\033") == "a%3Ab%25c%C3%A9%1B");
    CHECK(uri_of("~x-y_z.0") == "~x-y_z.0");
}

TEST_CASE("An absolute path is a file URI") {
    CHECK(uri_of("/tmp/a b.inp") == "file:///tmp/a%20b.inp");
}
