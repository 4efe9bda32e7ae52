/// @file
/// Building the schema table from a schema file.
///
/// The file is a small, fixed piece of YAML: `sections:` without indentation, group names two
/// spaces in, their properties and `entries:` four, keywords six, properties of keywords eight.
/// What does not fit is skipped, never reported.
#pragma once

#include <istream>
#include <string>
#include <unordered_map>

#include "nurl/input/gamess/schema.hpp"

namespace nurl::input::gamess::schema {

/// Groups by normalised name.
using Table = std::unordered_map<std::string, SectionSpec>;

/// The lists of words that keywords of a table take, as far as the file has them and as it has
/// them, by the address of the keyword's description. They hold as long as the table is moved and
/// not copied.
using Choices = std::unordered_map<const EntrySpec*, std::string>;

/// The 23 built-in groups, with the lines of a stream laid over them. Linear in the length of the
/// stream; where reading stops early, what was read stands. The stream is made to throw when it
/// goes bad, so that memory exhaustion comes out.
///
/// @param choices  gets the lists of words that keywords of the table take; may be null
[[nodiscard]] Table read_schema(std::istream& stream, Choices* choices = nullptr);

/// `read_schema` over a file; the built-in groups alone when `path` is empty or cannot be opened.
[[nodiscard]] Table load_schema(const std::string& path, Choices* choices = nullptr);

}  // namespace nurl::input::gamess::schema
