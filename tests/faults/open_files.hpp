/// @file
/// The open files of the process.
#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace nurl::test {

/// How many files, pipes and the like this process has open.
[[nodiscard]] inline std::size_t open_files() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(files, {}));
}

}  // namespace nurl::test
