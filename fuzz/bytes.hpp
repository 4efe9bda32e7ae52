/// @file
/// The input of a fuzz target as text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace nurl::fuzz {

/// The bytes that the fuzzer gives, as they are.
inline std::string text_of(const std::uint8_t* data, std::size_t size) {
    return {data, data + size};
}

}  // namespace nurl::fuzz
