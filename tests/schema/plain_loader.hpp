/// @file
/// A second loader of schema text, written for plainness, to compare the real one with.
#pragma once

#include <string>

#include "schema/loader.hpp"

namespace nurl::test {

/// Lays the lines of a schema text over a table.
[[nodiscard]] input::gamess::schema::Table load_plainly(const std::string& text,
                                                        input::gamess::schema::Table table);

}  // namespace nurl::test
