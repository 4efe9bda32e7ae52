#include "nurl/core/fs.hpp"

#include <array>
#include <filesystem>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "support/temporary_directory.hpp"

using nurl::core::fs::write_text_file;
using nurl::test::content;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;
using Names = std::vector<std::string>;

namespace {

struct stat status_of(const std::string& path) {
    struct stat status {};
    REQUIRE(::stat(path.c_str(), &status) == 0);
    return status;
}

mode_t mode_of(const std::string& path) { return status_of(path).st_mode & 07777; }

}  // namespace

TEST_CASE("A file that was not there is created with the text and nothing beside it") {
    const TemporaryDirectory directory;
    CHECK(write_text_file(directory.file("new.inp"), "one\ntwo\n"));
    CHECK(content(directory.file("new.inp")) == "one\ntwo\n");
    CHECK(directory.names() == Names{"new.inp"});
}

TEST_CASE("A file that was there holds the new text only") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "a text that is longer than the new one");
    CHECK(write_text_file(path, "short"));
    CHECK(content(path) == "short");
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("A file whose size does not fit in 31 bits is replaced") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "");
    constexpr off_t three_gigabytes = 3'000'000'000;
    REQUIRE(::truncate(path.c_str(), three_gigabytes) == 0);
    CHECK(write_text_file(path, "new"));
    CHECK(content(path) == "new");
}

TEST_CASE("An empty text makes an empty file") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    CHECK(write_text_file(path, ""));
    CHECK(content(path).empty());
}

TEST_CASE("A text of one byte is written") {
    const TemporaryDirectory directory;
    CHECK(write_text_file(directory.file("deck.inp"), "x"));
    CHECK(content(directory.file("deck.inp")) == "x");
}

TEST_CASE("Every byte is written as it is") {
    const TemporaryDirectory directory;
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    CHECK(write_text_file(directory.file("bytes"), bytes));
    CHECK(content(directory.file("bytes")) == bytes);
}

TEST_CASE("A text of several megabytes is written whole") {
    const TemporaryDirectory directory;
    std::string text;
    for (int line = 0; line < 500'000; ++line) text += std::to_string(line) + '\n';
    CHECK(write_text_file(directory.file("long"), text));
    CHECK(content(directory.file("long")) == text);
}

TEST_CASE("A relative path starts at the current directory") {
    const TemporaryDirectory directory;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    const bool written = write_text_file("relative.inp", "text");
    std::filesystem::current_path(before);
    CHECK(written);
    CHECK(content(directory.file("relative.inp")) == "text");
}

TEST_CASE("The mode bits of a replaced file are kept") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    for (const mode_t mode : std::array<mode_t, 5>{0600, 0640, 0664, 0755, 04750}) {
        CAPTURE(mode);
        make_file(path, "old");
        REQUIRE(::chmod(path.c_str(), mode) == 0);
        CHECK(write_text_file(path, "new"));
        CHECK(mode_of(path) == mode);
    }
}

TEST_CASE("Owner and group of a replaced file are kept") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    if (::geteuid() == 0) REQUIRE(::chown(path.c_str(), 65534, 65533) == 0);
    const struct stat before = status_of(path);
    CHECK(write_text_file(path, "new"));
    CHECK(status_of(path).st_uid == before.st_uid);
    CHECK(status_of(path).st_gid == before.st_gid);
}

TEST_CASE("A new file gets the mode that the umask leaves") {
    const TemporaryDirectory directory;
    const mode_t before = ::umask(027);
    const bool written = write_text_file(directory.file("new"), "text");
    ::umask(before);
    CHECK(written);
    CHECK(mode_of(directory.file("new")) == 0640);
}

TEST_CASE("A symbolic link stays and the file behind it is replaced") {
    const TemporaryDirectory directory;
    make_file(directory.path() / "far" / "real.inp", "old");
    std::filesystem::create_symlink("far/middle", directory.path() / "link");
    std::filesystem::create_symlink("real.inp", directory.path() / "far" / "middle");
    CHECK(write_text_file(directory.file("link"), "new"));
    CHECK(std::filesystem::is_symlink(directory.path() / "link"));
    CHECK(std::filesystem::is_symlink(directory.path() / "far" / "middle"));
    CHECK(content(directory.path() / "far" / "real.inp") == "new");
    CHECK(directory.names() == Names{"far", "link"});
}

TEST_CASE("An absolute symbolic link is followed") {
    const TemporaryDirectory directory;
    const TemporaryDirectory other;
    make_file(other.file("real.inp"), "old");
    std::filesystem::create_symlink(other.file("real.inp"), directory.path() / "link");
    CHECK(write_text_file(directory.file("link"), "new"));
    CHECK(content(other.file("real.inp")) == "new");
}

TEST_CASE("A dangling symbolic link has the file it points to created") {
    const TemporaryDirectory directory;
    std::filesystem::create_symlink("not-yet.inp", directory.path() / "link");
    CHECK(write_text_file(directory.file("link"), "text"));
    CHECK(std::filesystem::is_symlink(directory.path() / "link"));
    CHECK(content(directory.file("not-yet.inp")) == "text");
    CHECK(directory.names() == Names{"link", "not-yet.inp"});
}

TEST_CASE("Forty symbolic links in a row are followed") {
    const TemporaryDirectory directory;
    make_file(directory.file("0"), "old");
    for (int link = 1; link <= 40; ++link) {
        std::filesystem::create_symlink(std::to_string(link - 1),
                                        directory.file(std::to_string(link)));
    }
    CHECK(write_text_file(directory.file("40"), "new"));
    CHECK(content(directory.file("0")) == "new");
}

TEST_CASE("Another hard link keeps the old text") {
    const TemporaryDirectory directory;
    make_file(directory.file("one"), "old");
    std::filesystem::create_hard_link(directory.file("one"), directory.file("two"));
    CHECK(write_text_file(directory.file("one"), "new"));
    CHECK(content(directory.file("one")) == "new");
    CHECK(content(directory.file("two")) == "old");
}

TEST_CASE("A file name of 255 bytes can be written") {
    const TemporaryDirectory directory;
    const std::string path = directory.file(std::string(255, 'n'));
    CHECK(write_text_file(path, "old"));
    CHECK(write_text_file(path, "new"));
    CHECK(content(path) == "new");
}

TEST_CASE("The longest path that the system takes can be written, and none that is longer") {
    const TemporaryDirectory directory;
    constexpr std::size_t longest = 4095;
    std::string path = directory.path().string();
    while (path.size() + 202 < longest) path += '/' + std::string(200, 'd');
    path += '/' + std::string(longest - path.size() - 3, 'd');
    std::filesystem::create_directories(path);
    path += "/f";
    REQUIRE(path.size() == longest);
    CHECK(write_text_file(path, "text"));
    CHECK(content(path) == "text");
    const std::filesystem::path folder = std::filesystem::path{path}.parent_path();
    CHECK_FALSE(write_text_file(path + 'f', "text"));
    CHECK(std::distance(std::filesystem::directory_iterator(folder), {}) == 1);
}

TEST_CASE("A reader sees an old text or a new one and never a part") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string ones(30'000, '1');
    const std::string twos(10'000, '2');
    make_file(path, ones);
    std::thread writer([&] {
        for (int round = 0; round < 20; ++round) {
            static_cast<void>(write_text_file(path, twos));
            static_cast<void>(write_text_file(path, ones));
        }
    });
    int parts = 0;
    for (int round = 0; round < 200; ++round) {
        const std::string seen = content(path);
        if (seen != ones && seen != twos) ++parts;
    }
    writer.join();
    CHECK(parts == 0);
    CHECK(content(path) == ones);
}

TEST_CASE("Threads that write one file at the same time all succeed and leave one whole text") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    std::array<bool, 4> written{};
    std::vector<std::thread> threads;
    threads.reserve(written.size());
    for (bool& all_written : written) {
        threads.emplace_back([&path, &all_written] {
            all_written = true;
            for (int round = 0; round < 10; ++round) {
                all_written = all_written && write_text_file(path, "the same text");
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    CHECK(written == std::array<bool, 4>{true, true, true, true});
    CHECK(content(path) == "the same text");
    CHECK(directory.names() == Names{"deck.inp"});
}
