#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/core/fs.hpp"
#include "support/child_process.hpp"
#include "support/temporary_directory.hpp"

using nurl::core::fs::write_text_file;
using nurl::test::content;
using nurl::test::in_child;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;
using Names = std::vector<std::string>;

namespace {

std::string read_some(int file) {
    std::array<char, 100> buffer{};
    const ssize_t size = ::read(file, buffer.data(), buffer.size());
    return size < 0 ? "nothing to read"
                    : std::string(buffer.data(), static_cast<std::size_t>(size));
}

std::string descriptor_path(int file) { return "/dev/fd/" + std::to_string(file); }

int open_file(const std::string& path, int flags) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system call has no other form
    const int file = ::open(path.c_str(), flags | O_CLOEXEC);
    REQUIRE(file >= 0);
    return file;
}

}  // namespace

TEST_CASE("A named pipe is written directly and stays a pipe") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    const int reader = open_file(path, O_RDWR | O_NONBLOCK);
    const bool written = write_text_file(path, "text");
    const std::string seen = read_some(reader);
    ::close(reader);
    CHECK(written);
    CHECK(seen == "text");
    CHECK(std::filesystem::is_fifo(path));
    CHECK(directory.names() == Names{"pipe"});
}

TEST_CASE("A named pipe is waited for until somebody reads it, and written whole") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    const std::string text(300'000, 'x');  // more than a pipe holds
    CHECK(in_child([&] {
              std::string seen;
              std::thread reader([&] { seen = content(path); });
              const bool written = write_text_file(path, text);
              reader.join();
              return written && seen == text ? "whole" : "not whole";
          }) == "whole");
    CHECK(directory.names() == Names{"pipe"});
}

TEST_CASE("A named pipe whose reader goes away gives false where that signal is ignored") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    const auto write_to_hasty_reader = [&path] {
        std::thread reader([&path] {
            const int file = open_file(path, O_RDONLY);
            static_cast<void>(read_some(file));
            ::close(file);
        });
        const bool written = write_text_file(path, std::string(300'000, 'x'));
        reader.join();
        return written ? "written" : "refused";
    };
    CHECK(in_child([&] {
              static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
              return write_to_hasty_reader();
          }) == "refused");
    CHECK(in_child(write_to_hasty_reader) == "signal " + std::to_string(SIGPIPE));
    CHECK(directory.names() == Names{"pipe"});
}

TEST_CASE("A symbolic link to a named pipe is written through") {
    const TemporaryDirectory directory;
    REQUIRE(::mkfifo(directory.file("pipe").c_str(), 0600) == 0);
    std::filesystem::create_symlink("pipe", directory.path() / "link");
    const int reader = open_file(directory.file("pipe"), O_RDWR | O_NONBLOCK);
    const bool written = write_text_file(directory.file("link"), "text");
    const std::string seen = read_some(reader);
    ::close(reader);
    CHECK(written);
    CHECK(seen == "text");
}

TEST_CASE("The null device takes every text") {
    CHECK(write_text_file("/dev/null", "text"));
    CHECK(std::filesystem::is_character_file("/dev/null"));
}

TEST_CASE("A device without room gives false") {
    CHECK_FALSE(write_text_file("/dev/full", "text"));
    CHECK(std::filesystem::is_character_file("/dev/full"));
}

TEST_CASE("A descriptor named by a path is written where it stands") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("log");
    make_file(path, "first ");
    const int file = open_file(path, O_WRONLY);
    REQUIRE(::lseek(file, 0, SEEK_END) == 6);
    const bool by_device = write_text_file(descriptor_path(file), "second ");
    const bool by_process = write_text_file("/proc/self/fd/" + std::to_string(file), "third");
    ::close(file);
    CHECK(by_device);
    CHECK(by_process);
    CHECK(content(path) == "first second third");
    CHECK(directory.names() == Names{"log"});
}

TEST_CASE("A symbolic link to a descriptor is written as the descriptor") {
    const TemporaryDirectory directory;
    make_file(directory.file("log"), "first ");
    const int file = open_file(directory.file("log"), O_WRONLY | O_APPEND);
    std::filesystem::create_symlink(descriptor_path(file), directory.path() / "output");
    const bool written = write_text_file(directory.file("output"), "second");
    ::close(file);
    CHECK(written);
    CHECK(content(directory.file("log")) == "first second");
}

TEST_CASE("The standard output is written by its name") {
    const TemporaryDirectory directory;
    make_file(directory.file("output"), "");
    const int saved = ::dup(STDOUT_FILENO);
    const int file = open_file(directory.file("output"), O_WRONLY);
    ::dup2(file, STDOUT_FILENO);
    const bool first = write_text_file("/dev/stdout", "one ");
    const bool second = write_text_file("/dev/stdout", "two");
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    ::close(file);
    CHECK(first);
    CHECK(second);
    CHECK(content(directory.file("output")) == "one two");
}

TEST_CASE("The lowest descriptor is one as the others are") {
    const TemporaryDirectory directory;
    make_file(directory.file("log"), "");
    const int saved = ::dup(STDIN_FILENO);
    const int file = open_file(directory.file("log"), O_WRONLY);
    ::dup2(file, STDIN_FILENO);
    ::close(file);
    const bool first = write_text_file("/dev/fd/0", "one ");
    const bool second = write_text_file("/dev/fd/0", "two");
    ::close(STDIN_FILENO);
    const bool while_free = write_text_file(directory.file("deck.inp"), "text");
    ::dup2(saved, STDIN_FILENO);
    ::close(saved);
    CHECK(first);
    CHECK(second);
    CHECK(content(directory.file("log")) == "one two");
    CHECK(while_free);
    CHECK(content(directory.file("deck.inp")) == "text");
}

TEST_CASE("No descriptor stays open") {
    const auto count_open = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const TemporaryDirectory directory;
    const auto before = count_open();
    CHECK(write_text_file(directory.file("deck.inp"), "text"));
    CHECK(write_text_file("/dev/null", "text"));
    CHECK_FALSE(write_text_file(directory.file("missing/deck.inp"), "text"));
    CHECK(count_open() == before);
}

TEST_CASE("A descriptor that is closed or only for reading gives false") {
    const TemporaryDirectory directory;
    make_file(directory.file("input"), "old");
    const int file = open_file(directory.file("input"), O_RDONLY);
    const bool to_reader = write_text_file(descriptor_path(file), "new");
    ::close(file);
    CHECK_FALSE(to_reader);
    CHECK_FALSE(write_text_file(descriptor_path(file), "new"));
    CHECK(content(directory.file("input")) == "old");
}

TEST_CASE("A path that only begins like one of a descriptor is none") {
    CHECK_FALSE(write_text_file("/dev/fd/1x", "text"));
    CHECK_FALSE(write_text_file("/dev/fd/-1", "text"));
    CHECK_FALSE(write_text_file("/dev/fd/", "text"));
    CHECK_FALSE(write_text_file("/dev/fd/99999999999999999999", "text"));
}

TEST_CASE("A pipe without a reader gives false where its signal is ignored") {
    std::array<int, 2> ends{};
    REQUIRE(::pipe2(ends.data(), O_CLOEXEC) == 0);
    ::close(ends[0]);
    auto* const before = std::signal(SIGPIPE, SIG_IGN);
    const bool written = write_text_file(descriptor_path(ends[1]), "text");
    static_cast<void>(std::signal(SIGPIPE, before));
    ::close(ends[1]);
    CHECK_FALSE(written);
}
