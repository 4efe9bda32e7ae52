/// @file
/// How much of the heap is in use.
///
/// A program that holds the source beside this header has an operator new of its own, in all its
/// forms, which counts the bytes that were asked for and not given back. For programs of one thread
/// at a time.
#pragma once

#include <cstddef>

namespace nurl::test {

/// The bytes in use now.
[[nodiscard]] std::size_t live_bytes() noexcept;

/// The most bytes that were in use at one time since the last call of `forget_peak`.
[[nodiscard]] std::size_t peak_bytes() noexcept;

/// Makes the bytes in use now the peak.
void forget_peak() noexcept;

}  // namespace nurl::test
