/// @file
/// A second reader of schema text, to compare the real one with.
#pragma once

#include <string>

#include "schema/loader.hpp"

namespace nurl::test {

/// The built-in groups, written out once more, with the lines of a schema text laid over them.
[[nodiscard]] input::gamess::schema::Table read_schema_plainly(const std::string& text);

}  // namespace nurl::test
