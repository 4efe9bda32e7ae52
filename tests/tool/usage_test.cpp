// The help texts are files under golden/. To renew them after a change, run the tests once with
// NURL_TEST_REFRESH_GOLDEN=1 in the environment and look at the difference.
#include <cstdlib>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::Workplace;

namespace {

struct HelpText {
    std::string file;
    std::vector<std::string> arguments;
};

const std::vector<HelpText>& help_texts() {
    static const std::vector<HelpText> texts{
        {"gms-inp.txt", {"--help"}},
        {"check.txt", {"check", "--help"}},
        {"list.txt", {"list", "--help"}},
        {"get.txt", {"get", "--help"}},
        {"set.txt", {"set", "--help"}},
        {"unset.txt", {"unset", "--help"}},
        {"format.txt", {"format", "--help"}},
        {"show.txt", {"show", "--help"}},
        {"schema.txt", {"schema", "--help"}},
        {"new.txt", {"new", "--help"}},
        {"explain.txt", {"explain", "--help"}},
        {"diff.txt", {"diff", "--help"}},
        {"extract.txt", {"extract", "--help"}},
        {"splice.txt", {"splice", "--help"}},
    };
    return texts;
}

bool refreshes_golden() {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tests have one thread
    return std::getenv("NURL_TEST_REFRESH_GOLDEN") != nullptr;
}

}  // namespace

TEST_CASE("Help is what it was, on standard output, with status 0") {
    const Workplace place;
    for (const HelpText& help : help_texts()) {
        CAPTURE(help.file);
        const std::filesystem::path golden =
            std::filesystem::path{NURL_TEST_TOOL_GOLDEN} / help.file;
        const Outcome outcome = place.run(help.arguments);
        if (refreshes_golden()) nurl::test::make_file(golden, outcome.out);
        CHECK(outcome == Outcome{0, nurl::test::content(golden), ""});
    }
}

TEST_CASE("Help has examples for every subcommand") {
    const Workplace place;
    for (const HelpText& help : help_texts()) {
        CAPTURE(help.file);
        CHECK(place.run(help.arguments).out.find("Examples:\n  gms-inp ") != std::string::npos);
    }
}

TEST_CASE("The version is the project's") {
    const Workplace place;
    CHECK(place.run({"--version"}) == Outcome{0, "gms-inp " NURL_TEST_TOOL_VERSION "\n", ""});
}

TEST_CASE("Wrong usage gives a message on standard error and status 2") {
    const Workplace place;
    const std::vector<std::vector<std::string>> usages{
        {},
        {"--nosuch"},
        {"check"},
        {"list"},
        {"list", "a", "b"},
        {"unset"},
        {"check", "--wrong"},
        {"format", "-o"},
        {"list", "check", "a"},
        {"--schema"},
        {"get"},
        {"set"},
        {"format"},
        {"diff", "a"},
        {"diff", "a", "b", "c"},
        {"explain", "a", "b"},
        {"extract", "a"},
        {"splice", "a", "b"},
        {"check", "--disable"},
        {"check", "--json", "--format", "text", "a"}};
    for (const std::vector<std::string>& usage : usages) {
        CAPTURE(usage.size());
        const Outcome outcome = place.run(usage);
        CHECK(outcome.status == 2);
        CHECK(outcome.out.empty());
        CHECK(outcome.err.ends_with("\nRun with --help for more information.\n"));
    }
}

TEST_CASE("A word that is no command is told, with the command that may be meant") {
    const Workplace place;
    CHECK(place.run({"chek", "a.inp"}) ==
          Outcome{2, "", "gms-inp: error: there is no command 'chek'; did you mean 'check'?\n"});
    CHECK(
        place.run({"frobnicate"}) ==
        Outcome{2, "",
                "gms-inp: error: there is no command 'frobnicate'; 'gms-inp --help' lists them\n"});
}

TEST_CASE("A deck without anything asked of it is told to lack that") {
    const Workplace place;
    for (const char* const command : {"get", "unset"})
        CHECK(place.run({command, "a"}) ==
              Outcome{2, "",
                      "gms-inp: error: expected a deck and what is asked of it, not 'a' alone\n"});
    CHECK(place.run({"set", "a"}) ==
          Outcome{2, "", "gms-inp: error: no GROUP.KEY=VALUE is given\n"});
}

TEST_CASE("Control characters of arguments are escaped in messages about usage") {
    const Workplace place;
    const Outcome outcome = place.run({"list", "a.inp", "b\033[31m"});
    CHECK(outcome.err ==
          "The following argument was not expected: b\\x1B[31m\n"
          "Run with --help for more information.\n");
}
