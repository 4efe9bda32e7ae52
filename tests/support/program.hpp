/// @file
/// Starting a program of the build from a test.
#pragma once

#include <spawn.h>
#include <string>
#include <sys/types.h>
#include <vector>

namespace nurl::test {

/// The words that start a program: `words`, its path and arguments, behind the emulator and its
/// options when the build is for another machine.
[[nodiscard]] std::vector<std::string> started_as(std::vector<std::string> words);

/// What the functions that start a program take: a pointer to each text, and a null pointer behind
/// them. They point into `texts`.
[[nodiscard]] std::vector<char*> pointers(std::vector<std::string>& texts);

/// The directory and the streams that a program starts with.
class FileActions {
public:
    explicit FileActions(const std::string& directory);
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    FileActions(FileActions&&) = delete;
    FileActions& operator=(FileActions&&) = delete;
    ~FileActions();

    void open_for_reading(int stream, const std::string& path);

    /// A file that is there is emptied.
    void open_for_writing(int stream, const std::string& path);

    void close(int stream);

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    void open(int stream, const std::string& path, int flags);

    posix_spawn_file_actions_t actions_{};
};

/// Starts a program.
///
/// @param words        its path and arguments, without an emulator
/// @param environment  all of its variables, as `NAME=value`
[[nodiscard]] pid_t start_program(std::vector<std::string> words,
                                  std::vector<std::string> environment, const FileActions& actions);

/// Waits for the end of a program. @return its exit status, or 128 and the number of the signal
/// that ended it
[[nodiscard]] int wait_for(pid_t process);

}  // namespace nurl::test
