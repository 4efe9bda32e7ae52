// What saving a deck says, and what it leaves, when the file cannot be written. Further cases stand
// with the tests of the writer, those of each system call with the tests of the platform.
#include <filesystem>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "faults/open_files.hpp"
#include "nurl/input/gamess/model.hpp"
#include "support/child_process.hpp"
#include "support/groups.hpp"
#include "support/temporary_directory.hpp"

using nurl::input::gamess::GamessInput;
using nurl::test::content;
using nurl::test::deck_of;
using nurl::test::group;
using nurl::test::in_child;
using nurl::test::make_file;
using nurl::test::open_files;
using nurl::test::TemporaryDirectory;
namespace fs = std::filesystem;
using Names = std::vector<std::string>;

namespace {

constexpr const char* deck_text = " $X A=1 $END\n";

GamessInput deck() { return deck_of({group("X", {{"A", "1"}})}); }

std::string failure(const std::string& path) {
    return "Failed to write GAMESS input file: " + path;
}

/// What saving throws; "saved" when it does not throw.
std::string outcome(const std::string& path) {
    const std::size_t files = open_files();
    std::string told = "saved";
    try {
        deck().write_file(path);
    } catch (const std::runtime_error& error) {
        told = error.what();
    }
    return open_files() == files ? told : "a file was left open";
}

/// As `outcome`, by a user with no rights but those that everybody has.
std::string outcome_for_ordinary_user(const std::string& path) {
    return in_child([&path] {
        nurl::test::become_ordinary_user();
        return outcome(path);
    });
}

}  // namespace

TEST_CASE("A full disk leaves no new file") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("new.inp");
    CHECK(in_child([&] {
              nurl::test::limit_file_size(5);
              return outcome(path);
          }) == failure(path));
    CHECK(directory.names().empty());
}

TEST_CASE("A file that its user may not write stays and is named") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    REQUIRE(::chmod(directory.path().c_str(), 0777) == 0);
    REQUIRE(::chmod(path.c_str(), 0444) == 0);
    CHECK(outcome_for_ordinary_user(path) == failure(path));
    CHECK(content(path) == "old");
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("A directory that its user may not write stays as it is") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    REQUIRE(::chmod(path.c_str(), 0666) == 0);
    REQUIRE(::chmod(directory.path().c_str(), 0555) == 0);
    CHECK(outcome_for_ordinary_user(path) == failure(path));
    CHECK(outcome_for_ordinary_user(directory.file("new.inp")) ==
          failure(directory.file("new.inp")));
    REQUIRE(::chmod(directory.path().c_str(), 0700) == 0);
    CHECK(content(path) == "old");
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("A path that leads to no place for a file is named as given") {
    const TemporaryDirectory directory;
    make_file(directory.file("file"), "old");
    fs::create_symlink("circle", directory.path() / "circle");
    fs::create_symlink("missing/new.inp", directory.path() / "astray");
    for (const std::string& path :
         {directory.file("circle"), directory.file("astray"), directory.file("file/new.inp"),
          directory.file("file/"), directory.file(std::string(256, 'n')), std::string(4096, 'n'),
          std::string(4096, '/')}) {
        CAPTURE(path);
        CHECK(outcome(path) == failure(path));
    }
    CHECK(content(directory.file("file")) == "old");
    CHECK(directory.names() == Names{"astray", "circle", "file"});
}

TEST_CASE("Links stay links, and what they lead to is saved") {
    const TemporaryDirectory directory;
    make_file(directory.file("file"), "old");
    fs::create_symlink("file", directory.path() / "link");
    fs::create_symlink("new.inp", directory.path() / "dangling");
    CHECK(outcome(directory.file("link")) == "saved");
    CHECK(outcome(directory.file("dangling")) == "saved");
    CHECK(fs::read_symlink(directory.file("link")) == "file");
    CHECK(fs::read_symlink(directory.file("dangling")) == "new.inp");
    CHECK(content(directory.file("file")) == deck_text);
    CHECK(content(directory.file("new.inp")) == deck_text);
    CHECK(directory.names() == Names{"dangling", "file", "link", "new.inp"});
}

TEST_CASE("A link to a file that its user may not write is refused, and both stay") {
    const TemporaryDirectory directory;
    make_file(directory.file("file"), "old");
    fs::create_symlink("file", directory.path() / "link");
    REQUIRE(::chmod(directory.path().c_str(), 0777) == 0);
    REQUIRE(::chmod(directory.file("file").c_str(), 0444) == 0);
    CHECK(outcome_for_ordinary_user(directory.file("link")) == failure(directory.file("link")));
    CHECK(content(directory.file("file")) == "old");
    CHECK(directory.names() == Names{"file", "link"});
}

TEST_CASE("A named pipe gets the deck and stays a pipe") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    CHECK(in_child([&] {
              std::string seen;
              std::thread reader([&] { seen = content(path); });
              deck().write_file(path);
              reader.join();
              return seen;
          }) == deck_text);
    CHECK(fs::is_fifo(path));
    CHECK(directory.names() == Names{"pipe"});
}
