/// @file
/// Finding data files of a program or library, in its build tree as well as where it is installed.
///
/// Nothing here throws but on memory exhaustion: what cannot be read or does not exist is not
/// found. Calls from several threads are safe while no thread changes the environment.
#pragma once

#include <string>
#include <vector>

namespace nurl::core::resource {

/// Looks up an environment variable.
///
/// @param name  may be null, which names no variable
/// @return      its value; empty when it is not set
[[nodiscard]] std::string getenv_string(const char* name);

/// Tells whether a path names an existing regular file, directly or through symbolic links.
///
/// @param path  absolute, or relative to the current directory; an empty path, or one with a NUL
///              byte in it, names no file
[[nodiscard]] bool is_regular_file_path(const std::string& path);

/// Finds the first of several places at which a data file exists as a regular file.
///
/// Tried in this order: `explicit_path`, the value of the environment variable, then all
/// candidates, in their order, under one root after the other: the extra roots, the current
/// directory and its parents, the directory of the running program and its parents, the directory
/// of the library (or program) that this code is linked into and its parents. So the nearest root
/// wins over the earlier candidate. A root that cannot be told, such as a current directory that
/// was removed, is left out.
///
/// A process of root takes what the search finds only where nobody else could have put it: the file
/// and the directories above it must belong to root and not be writable by others, nor by a group
/// other than root's; directories with the sticky bit, such as /tmp, may be among those above.
/// Otherwise root, working in somebody's folder, would read what that user left there. The explicit
/// path and the variable are the caller's own words and are taken as they are.
///
/// @param env_var_name         the variable; null for none
/// @param relative_candidates  paths below a root, such as "share/app/data.txt"
/// @param explicit_path        empty for none
/// @param extra_roots          directories, without their parents; an empty one is left out
/// @param parent_levels        how many parents of a directory are tried; none when negative
/// @return the explicit path or the variable's value as it stands, or a root and a candidate joined
///         by a slash; empty when nothing was found
///
///     search_file("APP_DATA", {"share/app/data.txt"}, "", {}, 6);  // "/usr/share/app/data.txt"
[[nodiscard]] std::string search_file(const char* env_var_name,
                                      const std::vector<std::string>& relative_candidates,
                                      const std::string& explicit_path,
                                      const std::vector<std::string>& extra_roots,
                                      int parent_levels);

}  // namespace nurl::core::resource
