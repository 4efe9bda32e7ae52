/// @file
/// Running the program under conditions that make files fail.
#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace nurl::test {

/// What a run gave: the exit status and what it said on standard error.
struct ToolRun {
    int status = 0;   ///< 128 and the number of the signal when one ended it
    std::string err;  ///< standard error

    bool operator==(const ToolRun&) const = default;
};

/// How a failed comparison shows a run.
std::ostream& operator<<(std::ostream& stream, const ToolRun& run);

/// Runs gms-inp in a directory, its standard output going nowhere. A run that takes longer than
/// half a minute is ended.
///
/// @param prepare  done in the new process in front of the program, such as `become_ordinary_user`
[[nodiscard]] ToolRun run_tool(const std::filesystem::path& directory,
                               const std::vector<std::string>& arguments,
                               const std::function<void()>& prepare = {});

}  // namespace nurl::test
