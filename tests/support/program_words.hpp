/// @file
/// Starting a program of the build from a test.
#pragma once

#include <string>
#include <vector>

namespace nurl::test {

/// The words that start a program: `words`, its path and arguments, behind the emulator and its
/// options when the build is for another machine.
[[nodiscard]] std::vector<std::string> started_as(std::vector<std::string> words);

/// What the functions that start a program take: a pointer to each text, and a null pointer behind
/// them. They point into `texts`.
[[nodiscard]] std::vector<char*> pointers(std::vector<std::string>& texts);

}  // namespace nurl::test
