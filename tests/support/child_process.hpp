/// @file
/// Doing something in a process of its own, under conditions that the tests themselves cannot have.
#pragma once

#include <functional>
#include <string>
#include <sys/resource.h>

namespace nurl::test {

/// Runs an action in a child of this process and waits for its end.
///
/// @return the text that the action gave; "thrown: " and the message of an exception; "signal " and
///         the number when a signal ended it, which is 14 when it took longer than half a minute
[[nodiscard]] std::string in_child(const std::function<std::string()>& action);

/// Everything that comes out of a pipe, or a terminal, until its other end is closed.
[[nodiscard]] std::string read_to_end(int from);

/// Gives up the rights of the superuser, for the rest of a child. Does nothing for other users.
void become_ordinary_user();

/// Limits the size of files that a child writes; a write beyond that fails as on a full disk.
void limit_file_size(rlim_t bytes);

}  // namespace nurl::test
