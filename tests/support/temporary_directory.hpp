/// @file
/// Files for the length of a test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace nurl::test {

/// An empty directory of its own, removed with all its content at the end.
class TemporaryDirectory {
public:
    /// Makes the directory inside `parent`. Throws when that is not possible.
    explicit TemporaryDirectory(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path());
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    TemporaryDirectory(TemporaryDirectory&&) = delete;
    TemporaryDirectory& operator=(TemporaryDirectory&&) = delete;
    ~TemporaryDirectory();

    /// Absolute, without symbolic links.
    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

    /// Path of a file in the directory.
    [[nodiscard]] std::string file(std::string_view name) const { return (path_ / name).string(); }

    /// Names of everything in the directory, hidden files too, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

private:
    std::filesystem::path path_;
};

/// Makes a file, and the directories above it, without the code under test.
void make_file(const std::filesystem::path& path, std::string_view text);

/// The content of a file; throws when it cannot be read.
[[nodiscard]] std::string content(const std::filesystem::path& path);

}  // namespace nurl::test
