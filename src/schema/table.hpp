/// @file
/// The schema table of the process.
#pragma once

#include <string_view>
#include <vector>

#include "schema/loader.hpp"

namespace nurl::input::gamess::schema {

/// The table that all queries look into. The first call finds and reads the schema file while
/// concurrent first calls wait; later calls touch neither environment nor file system.
[[nodiscard]] const Table& schema_table();

/// The words that a keyword takes, as far as the schema lists them; none when it lists none.
///
/// @param entry  a keyword of `schema_table()`, as `find_entry` gives it; may be null
/// @return       as they stand in the file; the words are valid for the life of the process
///
/// Linear in the length of the list.
[[nodiscard]] std::vector<std::string_view> choices_of(const EntrySpec* entry);

}  // namespace nurl::input::gamess::schema
