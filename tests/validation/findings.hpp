/// @file
/// Validation under the schema of these tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/validation.hpp"

namespace nurl::test {

using Issues = std::vector<input::gamess::validation::Issue>;

/// The schema of these tests: structured, keyword and raw groups, aliases, and an odd name.
inline constexpr std::string_view test_schema =
    "sections:\n"
    "  CONTRL:\n"
    "    entries:\n"
    "      SCFTYP:\n"
    "      ICHARG:\n"
    "  CNTRL:\n"
    "    alias_of: CONTRL\n"
    "    entries:\n"
    "      MINE:\n"
    "  PCM:\n"
    "    entries:\n"
    "      SOLVNT:\n"
    "      XE:\n"
    "        indexed: yes\n"
    "  STRICT:\n"
    "    allow_unknown_entries: no\n"
    "    allow_raw_lines: no\n"
    "    entries:\n"
    "      KNOWN:\n"
    "  GRID:\n"
    "    parse_mode: raw\n"
    "    entries:\n"
    "      KNOWN:\n"
    "  POINTS:\n"
    "    alias_of: GRID\n"
    "  $$ODD:\n"
    "    parse_mode: structured\n"
    "    entries:\n"
    "      KNOWN:\n";

/// What a group, or a document, gives under that schema.
[[nodiscard]] Issues findings(const input::gamess::NamedSection& section,
                              const input::gamess::validation::Options& options = {});
[[nodiscard]] Issues findings(const input::gamess::GamessInput& input,
                              const input::gamess::validation::Options& options = {});

/// The document of a deck that is read under that schema.
[[nodiscard]] input::gamess::GamessInput read_deck(std::string_view text);

/// The finding for a keyword that is not known. `name` is the group in lower case.
[[nodiscard]] input::gamess::validation::Issue unknown_keyword(const std::string& name,
                                                               const std::string& key);

/// The finding for a group that is not known. `name` is the group in lower case.
[[nodiscard]] input::gamess::validation::Issue unknown_group(const std::string& name);

/// The finding for a line of free text. `name` is the group in lower case.
[[nodiscard]] input::gamess::validation::Issue raw_text(const std::string& name);

}  // namespace nurl::test

namespace doctest {

template <>
struct StringMaker<nurl::test::Issues> {
    static String convert(const nurl::test::Issues& issues);
};

}  // namespace doctest
