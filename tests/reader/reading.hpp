/// @file
/// Reading deck text in tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "model/printing.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::test {

using Entries = std::vector<input::gamess::KeyValue>;
using Lines = std::vector<std::string>;
using Sections = std::vector<input::gamess::NamedSection>;

/// Reads a text that holds groups.
inline input::gamess::ParseResult read(std::string_view text) {
    input::gamess::ParseResult result = input::gamess::parse_string(text);
    REQUIRE(result.ok);
    REQUIRE(result.error.empty());
    return result;
}

/// Reads a text that gives no warning.
inline input::gamess::GamessInput read_silently(std::string_view text) {
    const input::gamess::ParseResult result = read(text);
    CHECK(result.warnings == Lines{});
    return result.input;
}

/// The only group of a text; its warnings are of no interest.
inline input::gamess::NamedSection read_group(std::string_view text) {
    const input::gamess::ParseResult result = read(text);
    REQUIRE(result.input.sections.size() == 1);
    return result.input.sections[0];
}

}  // namespace nurl::test
