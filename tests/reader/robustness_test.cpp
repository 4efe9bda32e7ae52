// What holds for every text, however odd.
#include <algorithm>
#include <array>
#include <string>
#include <thread>
#include <vector>

#include <doctest/doctest.h>
#include <rapidcheck.h>

#include "nurl/core/text.hpp"
#include "reader/kept_text.hpp"
#include "reader/reading.hpp"
#include "reader/text_generator.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;
using nurl::core::text::to_upper_copy;
using nurl::core::text::trim;

namespace {

void check_section(const NamedSection& section) {
    RC_ASSERT(!section.name.empty());
    RC_ASSERT(section.name == to_upper_copy(section.name));
    for (const auto& [key, value] : section.entries) {
        RC_ASSERT(!key.empty());
        RC_ASSERT(key == to_upper_copy(key));
        RC_ASSERT(!value.empty());
        RC_ASSERT(value == trim(value));
    }
    for (const std::string& line : section.raw_lines) {
        RC_ASSERT(!line.empty());
        RC_ASSERT(line == trim(line));
    }
}

/// Reads a text, which must not throw, and checks what holds for the result of every text.
void check_reading(const std::string& text) {
    const ParseResult result = parse_string(text);
    RC_ASSERT(result.ok == result.error.empty());
    RC_ASSERT(result.ok == (!result.input.sections.empty() || result.input.has_data));
    RC_ASSERT(result.ok || (result.input == GamessInput{} && result.warnings.empty()));
    for (const std::string& warning : result.warnings)
        RC_ASSERT(warning.starts_with("Section $") || warning.starts_with("$DATA "));
    for (const NamedSection& section : result.input.sections) check_section(section);
    RC_ASSERT(result.input.extra_sections.empty());
    RC_ASSERT(std::ranges::find(result.input.data_lines, "") == result.input.data_lines.end());
}

}  // namespace

TEST_CASE("Reading any bytes neither throws nor breaks the rules of a document") {
    CHECK(rc::check("random bytes", [](const std::string& text) { check_reading(text); }));
    CHECK(rc::check("random bytes in a group", [](const std::string& text) {
        check_reading("$SCF " + text);
        check_reading("$DATA\nTitle\nC1\n" + text);
    }));
}

TEST_CASE("Reading any mixture of deck text neither throws nor breaks the rules of a document") {
    CHECK(rc::check("deck text", [] { check_reading(*deck_mixture()); }));
}

TEST_CASE("Nothing that stands inside a group of any mixture of deck text is lost") {
    CHECK(rc::check("deck text", [] {
        const std::string text = *deck_mixture();
        RC_ASSERT(lost_text(text, parse_string(text).input) == Lines{});
    }));
    CHECK(rc::check("random bytes in a group", [](const std::string& bytes) {
        const std::string text = "$SCF " + bytes;
        RC_ASSERT(lost_text(text, parse_string(text).input) == Lines{});
    }));
}

TEST_CASE("Reading the same text again gives the same result") {
    CHECK(rc::check("deck text", [] {
        const std::string text = *deck_mixture();
        RC_ASSERT(parse_string(text) == parse_string(text));
    }));
}

TEST_CASE("Several threads may read at once") {
    const std::string text =
        "$SCF words DIIS=.T.\n$VEC\n1 1\n $END\n$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7\n";
    std::array<ParseResult, 4> results;
    std::vector<std::thread> threads;
    for (ParseResult& result : results)
        threads.emplace_back([&result, &text] { result = parse_string(text); });
    for (std::thread& thread : threads) thread.join();
    for (const ParseResult& result : results) {
        CHECK(result.input.scf->diis == true);
        CHECK(result == results[0]);
    }
}

TEST_CASE("A text of one kind of line in great number is read") {
    for (const std::string line :
         {"$SCF\n", "$SCF DIIS=.T. $END\n", "$DATA\n", "$END\n", "\n", "$\n", "A(\n", "((((\n",
          "$SCF A=(((\n", "$DATA $END\n", "\r", "$SCF =\r"}) {
        CAPTURE(line);
        std::string text = "$SCF\n";
        for (int i = 0; i < 5000; ++i) text += line;
        CHECK(parse_string(text).ok);
    }
}
