#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <doctest/doctest.h>

#include "faults/files/read_faults.hpp"
#include "faults/open_files.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/child_process.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::in_child;
using nurl::test::make_file;
using nurl::test::open_files;
using nurl::test::ReadFault;
using nurl::test::TemporaryDirectory;

namespace {

/// Lines of one group, which the text begins with when it is long enough.
std::string deck_of(std::size_t lines) {
    std::string text = " $PCM\n";
    for (std::size_t line = 0; line < lines; ++line)
        text += " KEYWORD" + std::to_string(line) + "=some value\n";
    return text + " $END\n";
}

/// The error of a file, in a process that has no rights but those that everybody has.
std::string error_for_ordinary_user(const std::string& path) {
    return in_child([&path] {
        nurl::test::become_ordinary_user();
        return parse_file(path).error;
    });
}

}  // namespace

TEST_CASE("Short and interrupted reads add up to the whole file") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string text = deck_of(50);
    make_file(path, text);
    const ReadFault fault(path, {.at_most = 7, .interrupted = true});
    const ParseResult result = parse_file(path);
    CHECK(fault.reads() >= 2 * text.size() / 7);
    CHECK(result == parse_string(text));
    CHECK(result.input.sections.front().entries.size() == 50);
}

TEST_CASE("A read that fails, early or late, is a file that cannot be opened") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, deck_of(50));
    ParseResult expected;
    expected.error = "Failed to open file: " + path;
    const std::size_t files = open_files();
    for (const std::size_t failing : {1U, 2U, 10U}) {
        for (const int error : {EIO, EISDIR, ESTALE, EBADF}) {
            CAPTURE(failing);
            CAPTURE(error);
            const ReadFault fault(path, {.at_most = 16, .failing = failing, .error = error});
            CHECK(parse_file(path) == expected);
            CHECK(fault.reads() >= failing);
        }
    }
    CHECK(open_files() == files);
}

TEST_CASE("A file that grows while it is read is read to its new end") {
    for (const std::size_t at_most : {std::size_t{10}, std::size_t{1'000'000}}) {
        CAPTURE(at_most);
        const TemporaryDirectory directory;
        const std::string path = directory.file("deck.inp");
        make_file(path, deck_of(10));
        const std::string more = " $VEC\n" + std::string(200'000, '1') + "\n $END\n";
        const ReadFault fault(path, {.at_most = at_most, .behind_first = [&] {
                                         std::ofstream(path, std::ios::app) << more;
                                     }});
        CHECK(parse_file(path) == parse_string(deck_of(10) + more));
        CHECK(fault.reads() >= 2);
    }
}

TEST_CASE("A file that shrinks while it is read ends where it ends then") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string text = deck_of(10'000);
    make_file(path, text);
    const ReadFault fault(
        path, {.at_most = 1000, .behind_first = [&] { std::filesystem::resize_file(path, 1500); }});
    CHECK(parse_file(path) == parse_string(text.substr(0, 1500)));
    CHECK(fault.reads() >= 2);
}

TEST_CASE("A file that is emptied while it is read gives what was read of it") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string text = deck_of(10'000);
    make_file(path, text);
    const ReadFault fault(
        path, {.at_most = 1000, .behind_first = [&] { std::filesystem::resize_file(path, 0); }});
    CHECK(parse_file(path) == parse_string(text.substr(0, 1000)));
}

TEST_CASE("A file that is replaced while it is read gives its old text") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string text = deck_of(1000);
    make_file(path, text);
    const ReadFault fault(path, {.at_most = 1000, .behind_first = [&] {
                                     parse_string(" $NEW A=1 $END\n").input.write_file(path);
                                 }});
    CHECK(parse_file(path) == parse_string(text));
    CHECK(nurl::test::content(path) == " $NEW A=1 $END\n");
}

TEST_CASE("A file that its user may not read gives the error of one that cannot be opened") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("secret.inp");
    make_file(path, deck_of(1));
    REQUIRE(::chmod(directory.path().c_str(), 0755) == 0);
    REQUIRE(::chmod(path.c_str(), 0044) == 0);
    CHECK(error_for_ordinary_user(path) ==
          (::geteuid() == 0 ? "" : "Failed to open file: " + path));
    REQUIRE(::chmod(path.c_str(), 0) == 0);
    CHECK(error_for_ordinary_user(path) == "Failed to open file: " + path);
    REQUIRE(::chmod(path.c_str(), 0644) == 0);
    REQUIRE(::chmod(directory.path().c_str(), 0) == 0);
    CHECK(error_for_ordinary_user(path) == "Failed to open file: " + path);
    REQUIRE(::chmod(directory.path().c_str(), 0700) == 0);
}

TEST_CASE("A path that leads nowhere gives its error with the path as given") {
    const TemporaryDirectory directory;
    std::filesystem::create_symlink("missing.inp", directory.path() / "dangling");
    std::filesystem::create_symlink("circle", directory.path() / "circle");
    make_file(directory.file("deck.inp"), deck_of(1));
    for (const std::string& path :
         {directory.file("dangling"), directory.file("circle"), directory.file("deck.inp/deck.inp"),
          directory.file(std::string(256, 'n')), std::string(4096, 'n'),
          std::string(100'000, '/')}) {
        CAPTURE(path);
        CHECK(parse_file(path).error == "Failed to open file: " + path);
    }
}

TEST_CASE("A pipe whose writer goes away is read to where it ends") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    const std::string text = deck_of(20'000);
    std::thread writer([&] { std::ofstream(path) << text.substr(0, text.size() / 2); });
    const ParseResult result = parse_file(path);
    writer.join();
    CHECK(result == parse_string(text.substr(0, text.size() / 2)));
}
