/// @file
/// How much of the stack an action uses.
#pragma once

#include <cstddef>
#include <functional>

namespace nurl::test {

/// Runs an action to its end on a thread whose stack was painted before.
///
/// @return the bytes of the stack, from its top to the deepest byte whose colour changed. What the
///         C library puts on the stack of a new thread is in it, some kilobytes.
/// @throws what `action` throws
[[nodiscard]] std::size_t stack_used_by(const std::function<void()>& action);

}  // namespace nurl::test
