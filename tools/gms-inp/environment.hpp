/// @file
/// The environment variables the program reads and sets. Nothing here is safe to call from several
/// threads; the program has one.
#pragma once

#include <string>

namespace gms_inp {

/// Whether an environment variable is set and not empty.
[[nodiscard]] bool is_set_in_environment(const char* name) noexcept;

/// Makes the library read its schema from `path`. Has an effect only before the first deck is read
/// and before the first question to the schema.
///
/// @throws std::runtime_error when `path` is no regular file
void use_schema_file(const std::string& path);

}  // namespace gms_inp
