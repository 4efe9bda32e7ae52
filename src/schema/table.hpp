/// @file
/// The schema table of the process.
#pragma once

#include "schema/loader.hpp"

namespace nurl::input::gamess::schema {

/// The table that all queries look into. The first call finds and reads the schema file while
/// concurrent first calls wait; later calls touch neither environment nor file system.
[[nodiscard]] const Table& schema_table();

}  // namespace nurl::input::gamess::schema
