#include <doctest/doctest.h>

#include "nurl/input/gamess/source/check.hpp"
#include "rule_names.hpp"
#include "tool/workplace.hpp"

using gms_inp::nearest;
using nurl::test::Outcome;
using nurl::test::Workplace;

namespace source = nurl::input::gamess::source;

TEST_CASE("Without a name all rules are listed with severity and summary") {
    const Workplace place;
    const Outcome outcome = place.run({"explain"});
    CHECK(outcome.status == 0);
    CHECK(outcome.err.empty());
    CHECK(outcome.out.starts_with("rule "));
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        CHECK(outcome.out.find("\n" + std::string{rule.name} + " ") != std::string::npos);
        CHECK(outcome.out.find(std::string{rule.summary} + "\n") != std::string::npos);
    }
}

TEST_CASE("A rule is explained on a page of 80 columns, its name in any case") {
    const Workplace place;
    for (const source::Rule& rule : source::rules()) {
        CAPTURE(rule.name);
        const Outcome outcome = place.run({"explain", std::string{rule.name}});
        CHECK(outcome.status == 0);
        CHECK(outcome.out.starts_with(std::string{rule.name} + " ("));
        CHECK(outcome.out.ends_with(".\n"));
        const std::string page = outcome.out.substr(outcome.out.find("\n\n") + 2);
        std::size_t longest = 0;
        for (std::size_t begin = 0; begin < page.size();) {
            const std::size_t end = page.find('\n', begin);
            longest = std::max(longest, end - begin);
            begin = end + 1;
        }
        CHECK(longest <= 80);
    }
    const std::string name{source::rules().front().name};
    CHECK(place.run({"explain", " " + name + " "}) == place.run({"explain", name}));
}

TEST_CASE("A rule that does not exist gives status 2 and the nearest name") {
    const Workplace place;
    CHECK(place.run({"explain", "unknwon-group"}) ==
          Outcome{2, "",
                  "gms-inp: error: there is no rule 'unknwon-group'; did you mean "
                  "'unknown-group'?\n"});
    CHECK(place.run({"explain", "xyz"}) ==
          Outcome{2, "", "gms-inp: error: there is no rule 'xyz'; 'gms-inp explain' lists them\n"});
}

TEST_CASE("The nearest word has the fewest changes, letter case aside") {
    const std::vector<std::string_view> words{"alpha", "beta", "gamma"};
    CHECK(nearest("ALPHA", words) == "alpha");
    CHECK(nearest("betta", words) == "beta");
    CHECK(nearest("bet", words) == "beta");
    CHECK(nearest("gamba", words) == "gamma");
}

TEST_CASE("A word is near when at most a third of it changes") {
    const std::vector<std::string_view> words{"abcdef"};
    CHECK(nearest("abcdxx", words) == "abcdef");
    CHECK(nearest("abcxxx", words).empty());
    CHECK(nearest("", words).empty());
    CHECK(nearest("abcdef", {}).empty());
    CHECK(nearest(std::string(1000, 'a'), words).empty());
}
