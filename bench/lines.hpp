/// @file
/// What every floor over lines does.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace nurl::bench {

/// Calls `take` with every line of a text, which ends its lines with LF.
template <class Take>
void for_each_line(std::string_view text, Take take) {
    while (!text.empty()) {
        const void* const found = std::memchr(text.data(), '\n', text.size());
        const std::size_t size =
            found == nullptr
                ? text.size()
                : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
        take(text.substr(0, size));
        text.remove_prefix(std::min(size + 1, text.size()));
    }
}

/// Finds the end of every line.
inline std::size_t count_lines(std::string_view text) {
    std::size_t lines = 0;
    for_each_line(text, [&lines](std::string_view /*line*/) { ++lines; });
    return lines;
}

}  // namespace nurl::bench
