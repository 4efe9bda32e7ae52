#include <array>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/model.hpp"
#include "support/groups.hpp"
#include "support/temporary_directory.hpp"

using nurl::input::gamess::GamessInput;
using nurl::test::content;
using nurl::test::deck_of;
using nurl::test::group;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;
using Names = std::vector<std::string>;

namespace {

const std::string failure = "Failed to write GAMESS input file: ";

/// What saving throws; "saved" when it does not throw.
std::string outcome(const GamessInput& deck, const std::string& path) {
    try {
        deck.write_file(path);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "saved";
}

/// As `outcome`, in a process of its own whose files are limited to a number of bytes.
std::string outcome_with_limit(const GamessInput& deck, const std::string& path, rlim_t limit) {
    std::array<int, 2> ends{};
    REQUIRE(::pipe(ends.data()) == 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit size{limit, limit};
        const bool is_limited =
            std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &size) == 0;
        const std::string told = is_limited ? outcome(deck, path) : "not limited";
        const ssize_t sent = ::write(ends[1], told.data(), told.size());
        ::_exit(sent == static_cast<ssize_t>(told.size()) ? 0 : 1);
    }
    ::close(ends[1]);
    std::array<char, 512> buffer{};
    const ssize_t size = ::read(ends[0], buffer.data(), buffer.size());
    ::close(ends[0]);
    int status = -1;
    REQUIRE(::waitpid(child, &status, 0) == child);
    REQUIRE(status == 0);
    REQUIRE(size > 0);
    return {buffer.data(), static_cast<std::size_t>(size)};
}

GamessInput small_deck() { return deck_of({group("X", {{"A", "1"}}, {"raw"})}); }

}  // namespace

TEST_CASE("A file holds the text of the deck and nothing else") {
    const TemporaryDirectory directory;
    small_deck().write_file(directory.file("deck.inp"));
    CHECK(content(directory.file("deck.inp")) == " $X A=1\nraw\n $END\n");
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("An empty document gives an empty file") {
    const TemporaryDirectory directory;
    GamessInput{}.write_file(directory.file("deck.inp"));
    CHECK(content(directory.file("deck.inp")).empty());
}

TEST_CASE("An older file is replaced as a whole") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, std::string(5000, 'o'));
    small_deck().write_file(path);
    CHECK(content(path) == small_deck().to_string());
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("Bytes of any kind reach the file") {
    const TemporaryDirectory directory;
    using namespace std::string_literals;
    const GamessInput deck = deck_of({group("X", {{"A", "\0\xFF\rz"s}})});
    deck.write_file(directory.file("deck.inp"));
    CHECK(content(directory.file("deck.inp")) == " $X A=\0\xFF\rz $END\n"s);
}

TEST_CASE("A file that cannot be written gives one message with the path as given") {
    const TemporaryDirectory directory;
    for (const std::string& path :
         {directory.file("missing/deck.inp"), directory.path().string(),
          directory.path().string() + "/./", std::string{}, std::string{"/dev/full"}}) {
        CAPTURE(path);
        CHECK(outcome(small_deck(), path) == failure + path);
    }
    CHECK(directory.names().empty());
}

TEST_CASE("A failure leaves the document as it was") {
    GamessInput deck = small_deck();
    const GamessInput before = deck;
    CHECK(outcome(deck, "/dev/full") == failure + "/dev/full");
    CHECK(deck == before);
}

TEST_CASE("A failure leaves the old file whole and no other file") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old deck\n");
    const GamessInput deck = deck_of({group("X", {{"A", std::string(5000, 'x')}})});
    CHECK(outcome_with_limit(deck, path, 1000) == failure + path);
    CHECK(content(path) == "old deck\n");
    CHECK(directory.names() == Names{"deck.inp"});
    CHECK(outcome_with_limit(deck, path, 6000) == "saved");
    CHECK(content(path) == deck.to_string());
}
