/// @file
/// The heap that a measured stretch of a family's operation takes.
#pragma once

#include <cstddef>
#include <functional>

namespace nurl::test {

/// Runs an action that marks what counts with `nurl::bench::growth::measured`.
///
/// @return the most bytes of the heap that a marked stretch took at one time, beyond those that
/// were
///         in use when it began; what it gave back and did not take is not set off against it
[[nodiscard]] std::size_t heap_used_by(const std::function<void()>& action);

/// Whether the program was built with a sanitizer, which has a heap and a stack of its own ways.
[[nodiscard]] constexpr bool is_sanitized() noexcept {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || \
    __has_feature(memory_sanitizer)
    return true;
#else
    return false;
#endif
#else
    return false;
#endif
}

}  // namespace nurl::test
