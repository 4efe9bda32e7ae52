/// @file
/// A program whose memory comes from its own hands.
///
/// The source beside this header has operator new and delete in all their forms. They ask the two
/// functions below, which the program defines.
#pragma once

#include <cstddef>

namespace nurl::test {

/// Gives memory.
///
/// @param alignment  a power of two, at least that of plain operator new
/// @return null when there is none, which the throwing forms turn into std::bad_alloc
[[nodiscard]] void* allocate_block(std::size_t size, std::size_t alignment) noexcept;

/// Takes memory back.
///
/// @param block      null is fine
/// @param alignment  the one that it was asked for with
void release_block(void* block, std::size_t alignment) noexcept;

}  // namespace nurl::test
