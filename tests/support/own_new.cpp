#include "support/own_new.hpp"

#include <algorithm>
#include <new>

namespace {

using nurl::test::allocate_block;
using nurl::test::release_block;

constexpr std::size_t usual = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

constexpr std::size_t number(std::align_val_t alignment) noexcept {
    return std::max(usual, static_cast<std::size_t>(alignment));
}

void* allocate_or_throw(std::size_t size, std::size_t alignment) {
    if (void* const block = allocate_block(size, alignment)) return block;
    throw std::bad_alloc();
}

}  // namespace

// NOLINTBEGIN(misc-new-delete-overloads): each has its counterpart further down
void* operator new(std::size_t size) { return allocate_or_throw(size, usual); }
void* operator new[](std::size_t size) { return allocate_or_throw(size, usual); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocate_or_throw(size, number(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocate_or_throw(size, number(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate_block(size, usual);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate_block(size, usual);
}
void* operator new(std::size_t size, std::align_val_t alignment,
                   const std::nothrow_t& /*tag*/) noexcept {
    return allocate_block(size, number(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment,
                     const std::nothrow_t& /*tag*/) noexcept {
    return allocate_block(size, number(alignment));
}

void operator delete(void* block) noexcept { release_block(block, usual); }
void operator delete[](void* block) noexcept { release_block(block, usual); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release_block(block, usual); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { release_block(block, usual); }
void operator delete(void* block, std::align_val_t alignment) noexcept {
    release_block(block, number(alignment));
}
void operator delete[](void* block, std::align_val_t alignment) noexcept {
    release_block(block, number(alignment));
}
void operator delete(void* block, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    release_block(block, number(alignment));
}
void operator delete[](void* block, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    release_block(block, number(alignment));
}
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept {
    release_block(block, usual);
}
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept {
    release_block(block, usual);
}
void operator delete(void* block, std::align_val_t alignment,
                     const std::nothrow_t& /*tag*/) noexcept {
    release_block(block, number(alignment));
}
void operator delete[](void* block, std::align_val_t alignment,
                       const std::nothrow_t& /*tag*/) noexcept {
    release_block(block, number(alignment));
}
// NOLINTEND(misc-new-delete-overloads)
