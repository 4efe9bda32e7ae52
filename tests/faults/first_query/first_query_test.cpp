// The schema is loaded once a process, by the first question that needs it. Each case here asks it
// in a process of its own that has not asked before, so nothing else may stand in this program.
#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "faults/allocation_faults.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/schema.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/validation.hpp"
#include "support/child_process.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::AllocationFault;
using nurl::test::in_child;
using nurl::test::live_blocks;
using nurl::test::Shortage;
using nurl::test::TemporaryDirectory;

namespace {

/// Asks something for which the schema is loaded. @return whether the answer is the right one
using Question = std::function<bool()>;

/// A schema that the 23 groups known anyway are no part of.
std::string schema_text() {
    std::string text = "sections:\n";
    for (int group = 0; group < 20; ++group)
        text += "  a_group_with_a_long_name_" + std::to_string(group) +
                ":\n    entries:\n      a_keyword_with_a_long_name:\n        kind: value\n" +
                "        choices: [THE_FIRST_OF_THE_CHOICES, THE_SECOND_OF_THEM]\n";
    return text;
}

/// What a process holds behind the first answer.
std::string found_after(bool is_right, long blocks) {
    return std::to_string(schema::section_names().size()) + " groups, " +
           (is_right ? "right" : "wrong") + " answer, " + std::to_string(blocks) + " blocks";
}

/// Asks once, with nothing failing.
std::string ask(const Question& question) {
    const long blocks = live_blocks();
    const bool is_right = question();
    return found_after(is_right, live_blocks() - blocks);
}

/// Asks with the 1st, 2nd, 3rd ... allocation failing until there is an answer.
std::string ask_again_and_again(const Question& question, Shortage shortage) {
    const long blocks = live_blocks();
    for (std::size_t occurrence = 1;; ++occurrence) {
        const AllocationFault fault(occurrence, shortage);
        try {
            const bool is_right = question();
            if (fault.was_met()) return "an answer in spite of a failure";
            if (occurrence <= 100) return "an answer too early";
            return found_after(is_right, live_blocks() - blocks);
        } catch (const std::bad_alloc&) {
            if (!fault.was_met()) return "a failure of its own";
        }
    }
}

void check_first_question(const Question& question) {
    const TemporaryDirectory directory;
    const std::string path = directory.file("schema.yaml");
    nurl::test::make_file(path, schema_text());
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the tests have one thread
    REQUIRE(::setenv("NURL_GMS_INP_SCHEMA_YAML", path.c_str(), 1) == 0);
    const std::string expected = in_child([&] { return ask(question); });
    REQUIRE(expected.starts_with("43 groups, right answer, "));
    for (const Shortage shortage : {Shortage::Passing, Shortage::Lasting})
        CHECK(in_child([&] { return ask_again_and_again(question, shortage); }) == expected);
}

constexpr std::string_view deck =
    " $A_GROUP_WITH_A_LONG_NAME_19 A_KEYWORD_WITH_A_LONG_NAME=1 $END\n";

}  // namespace

TEST_CASE("A first query that memory runs out for can be asked again") {
    check_first_question([] {
        return schema::find_entry("a_group_with_a_long_name_19", "a_keyword_with_a_long_name") !=
               nullptr;
    });
}

TEST_CASE("A first reading that memory runs out for can be done again") {
    check_first_question([] { return parse_string(deck).input.sections.size() == 1; });
}

TEST_CASE("A first validation that memory runs out for can be done again") {
    const NamedSection group{"A_GROUP_WITH_A_LONG_NAME_19", {{"A_WRONG_KEYWORD", "1"}}, {}};
    check_first_question([&group] { return validation::validate_section(group, {}).size() == 1; });
}

TEST_CASE("A first check that memory runs out for can be done again") {
    check_first_question([] {
        const source::Deck checked{std::string{deck}};
        return !source::check(checked).empty();
    });
}
