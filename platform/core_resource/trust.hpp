/// @file
/// Whether a file can be used that was found, not named.
#pragma once

#include <filesystem>

namespace nurl::core::resource {

/// Tells whether only root can have put a file where it is.
///
/// That is so when the file and every directory above it belong to root and nobody else may write
/// to them: neither others, nor a group other than root's. In a directory with the sticky bit, such
/// as /tmp, others can add files but not replace those of root, so it may be among the directories.
///
/// @param file  symbolic links on the way to it are followed first; one that cannot be looked at is
///              not trusted
[[nodiscard]] bool only_root_could_write(const std::filesystem::path& file);

}  // namespace nurl::core::resource
