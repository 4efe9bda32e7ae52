#include <algorithm>
#include <iterator>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/input/gamess/schema.hpp"
#include "validation/findings.hpp"
#include "validation/random_document.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::NamedSection;
using nurl::input::gamess::validation::Issue;
using nurl::input::gamess::validation::Options;
using nurl::input::gamess::validation::Severity;
using nurl::test::any_document;
using nurl::test::any_section;
using nurl::test::findings;
using nurl::test::Issues;

namespace {

constexpr Options none{false, false, false};
constexpr Options sections_only{true, false, false};
constexpr Options keywords_only{false, true, false};
constexpr Options text_only{false, false, true};

void append(Issues& issues, const Issues& more) {
    issues.insert(issues.end(), more.begin(), more.end());
}

template <class Subject>
void check_union(const Subject& subject) {
    Issues single = findings(subject, sections_only);
    append(single, findings(subject, keywords_only));
    append(single, findings(subject, text_only));
    RC_ASSERT(std::ranges::is_permutation(findings(subject), single));
}

template <class Subject>
Issues of_severity(const Subject& subject, Severity severity) {
    const Issues all = findings(subject);
    Issues some;
    std::ranges::copy_if(all, std::back_inserter(some),
                         [severity](const Issue& issue) { return issue.severity == severity; });
    return some;
}

}  // namespace

TEST_CASE("With all switches off no document gives anything") {
    CHECK(rc::check([] { RC_ASSERT(findings(*any_document(), none).empty()); }));
    CHECK(rc::check([] { RC_ASSERT(findings(*any_section(), none).empty()); }));
}

TEST_CASE("All switches together give what each gives alone") {
    CHECK(rc::check([] { check_union(*any_document()); }));
    CHECK(rc::check([] { check_union(*any_section()); }));
}

TEST_CASE("A switch alone gives the findings of its severity in the same order") {
    CHECK(rc::check([] {
        const GamessInput input = *any_document();
        RC_ASSERT(findings(input, sections_only) == of_severity(input, Severity::Info));
        RC_ASSERT(findings(input, keywords_only) == of_severity(input, Severity::Warning));
        RC_ASSERT(findings(input, text_only) == of_severity(input, Severity::Error));
    }));
}

TEST_CASE("A document gives what its records and then its groups give") {
    CHECK(rc::check([] {
        GamessInput input = *any_document();
        Issues expected;
        for (const NamedSection& section : input.sections) append(expected, findings(section));
        for (const NamedSection& section : input.extra_sections)
            append(expected, findings(section));
        const Issues all = findings(input);
        input.sections.clear();
        input.extra_sections.clear();
        Issues in_order = findings(input);
        append(in_order, expected);
        RC_ASSERT(all == in_order);
    }));
}

TEST_CASE("A finding has a key when it is a Warning and names its group in normal form") {
    CHECK(rc::check([] {
        const NamedSection section = *any_section();
        for (const Issue& issue : findings(section)) {
            RC_ASSERT(issue.section ==
                      nurl::input::gamess::schema::normalize_section_name(section.name));
            RC_ASSERT(issue.key.empty() || issue.severity == Severity::Warning);
            RC_ASSERT(!issue.message.empty());
        }
    }));
}

TEST_CASE("A group that is not known gives at most one finding") {
    CHECK(rc::check([] {
        const NamedSection section = *any_section();
        const Issues infos = findings(section, sections_only);
        RC_ASSERT(infos.size() <= 1U);
        if (infos.size() == 1) RC_ASSERT(findings(section) == infos);
    }));
}
