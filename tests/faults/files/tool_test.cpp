// Commands of gms-inp whose deck or output cannot be written.
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "faults/files/tool_run.hpp"
#include "support/child_process.hpp"
#include "support/temporary_directory.hpp"

using nurl::test::content;
using nurl::test::make_file;
using nurl::test::run_tool;
using nurl::test::TemporaryDirectory;
using nurl::test::ToolRun;
namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Words = std::vector<std::string>;

namespace {

/// A deck that each of the commands below changes, since one of its lines is too long.
const std::string deck = " $SCF DIRSCF=.T." + std::string(80, ' ') + "DIIS=.T. $END\n";
constexpr const char* other_deck = " $SCF SOSCF=.T. $END\n";

/// A directory with the deck as `a.inp` and another one as `b.inp`.
class Decks {
public:
    Decks() {
        make_file(file("a.inp"), deck);
        make_file(file("b.inp"), other_deck);
    }
    Decks(const Decks&) = delete;
    Decks& operator=(const Decks&) = delete;
    Decks(Decks&&) = delete;
    Decks& operator=(Decks&&) = delete;
    ~Decks() { ::chmod(path().c_str(), 0700); }

    [[nodiscard]] std::string file(std::string_view name) const { return directory_.file(name); }
    [[nodiscard]] const fs::path& path() const { return directory_.path(); }
    [[nodiscard]] Names names() const { return directory_.names(); }

    void set_modes(mode_t of_directory, mode_t of_deck) const {
        REQUIRE(::chmod(file("a.inp").c_str(), of_deck) == 0);
        REQUIRE(::chmod(path().c_str(), of_directory) == 0);
    }

private:
    TemporaryDirectory directory_;
};

/// Commands that replace `a.inp`.
const std::vector<Words> in_place{
    {"set", "-i", "a.inp", "SCF.DIRSCF=.F."},
    {"unset", "-i", "a.inp", "SCF.DIIS"},
    {"format", "-i", "a.inp"},
    {"format", "-i", "--canonical", "a.inp"},
    {"splice", "-i", "a.inp", "SCF", "--from", "b.inp"},
};

/// Commands that write to the file that comes behind them.
const std::vector<Words> to_output{
    {"set", "a.inp", "SCF.DIRSCF=.F.", "-o"},
    {"unset", "a.inp", "SCF.DIIS", "-o"},
    {"format", "a.inp", "-o"},
    {"extract", "a.inp", "SCF", "-o"},
    {"splice", "a.inp", "SCF", "--from", "b.inp", "-o"},
};

std::string shown(const Words& command) {
    std::string text;
    for (const std::string& word : command) text += word + ' ';
    return text;
}

Words with(Words command, const std::string& word) {
    command.push_back(word);
    return command;
}

ToolRun cannot_write(const std::string& path) {
    return {2, "gms-inp: error: cannot write " + path + "\n"};
}

/// Whether the program lies where no ordinary user gets to.
bool is_out_of_reach() {
    return nurl::test::in_child([] {
               nurl::test::become_ordinary_user();
               return ::access(NURL_TEST_TOOL_PROGRAM, X_OK) == 0 ? "in reach" : "out of reach";
           }) != "in reach";
}

const bool out_of_reach = is_out_of_reach();

void fill_disk() { nurl::test::limit_file_size(10); }

}  // namespace

TEST_CASE("Every command edits in place or writes to a file when nothing fails") {
    for (const Words& command : in_place) {
        CAPTURE(shown(command));
        const Decks decks;
        CHECK(run_tool(decks.path(), command) == ToolRun{0, ""});
        CHECK(content(decks.file("a.inp")) != deck);
    }
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        const Decks decks;
        CHECK(run_tool(decks.path(), with(command, "out.inp")) == ToolRun{0, ""});
        CHECK(content(decks.file("a.inp")) == deck);
        CHECK(content(decks.file("out.inp")).starts_with(" $SCF"));
    }
}

TEST_CASE("A deck edited in place stays as it was when the disk is full") {
    for (const Words& command : in_place) {
        CAPTURE(shown(command));
        const Decks decks;
        CHECK(run_tool(decks.path(), command, fill_disk) == cannot_write("a.inp"));
        CHECK(content(decks.file("a.inp")) == deck);
        CHECK(decks.names() == Names{"a.inp", "b.inp"});
    }
}

TEST_CASE("A deck that its user may not write stays as it was" * doctest::skip(out_of_reach)) {
    for (const Words& command : in_place) {
        CAPTURE(shown(command));
        const Decks decks;
        decks.set_modes(0777, 0444);
        CHECK(run_tool(decks.path(), command, nurl::test::become_ordinary_user) ==
              cannot_write("a.inp"));
        CHECK(content(decks.file("a.inp")) == deck);
        CHECK(decks.names() == Names{"a.inp", "b.inp"});
    }
}

TEST_CASE("A deck in a directory that its user may not write stays as it was" *
          doctest::skip(out_of_reach)) {
    for (const Words& command : in_place) {
        CAPTURE(shown(command));
        const Decks decks;
        decks.set_modes(0555, 0666);
        CHECK(run_tool(decks.path(), command, nurl::test::become_ordinary_user) ==
              cannot_write("a.inp"));
        CHECK(content(decks.file("a.inp")) == deck);
        CHECK(decks.names() == Names{"a.inp", "b.inp"});
    }
}

TEST_CASE("An ordinary user edits in place where everybody may write" *
          doctest::skip(out_of_reach)) {
    const Decks decks;
    decks.set_modes(0777, 0666);
    CHECK(run_tool(decks.path(), in_place.front(), nurl::test::become_ordinary_user) ==
          ToolRun{0, ""});
    CHECK(content(decks.file("a.inp")) != deck);
}

TEST_CASE("An output stays as it was when the disk is full") {
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        const Decks decks;
        make_file(decks.file("out.inp"), "old");
        CHECK(run_tool(decks.path(), with(command, "out.inp"), fill_disk) ==
              cannot_write("out.inp"));
        CHECK(run_tool(decks.path(), with(command, "new.inp"), fill_disk) ==
              cannot_write("new.inp"));
        CHECK(content(decks.file("out.inp")) == "old");
        CHECK(decks.names() == Names{"a.inp", "b.inp", "out.inp"});
    }
}

TEST_CASE("An output that cannot be written is named as it was given") {
    const std::string too_long(4096, 'n');
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        const Decks decks;
        fs::create_directory(decks.path() / "folder");
        fs::create_symlink("circle", decks.path() / "circle");
        fs::create_symlink("missing/new.inp", decks.path() / "astray");
        for (const std::string& output :
             {std::string{"folder"}, std::string{"folder/"}, std::string{"/dev/full"},
              std::string{"circle"}, std::string{"astray"}, std::string{"b.inp/x"}, too_long}) {
            CAPTURE(output);
            CHECK(run_tool(decks.path(), with(command, output)) == cannot_write(output));
        }
        CHECK(content(decks.file("a.inp")) == deck);
        CHECK(decks.names() == Names{"a.inp", "astray", "b.inp", "circle", "folder"});
    }
}

TEST_CASE("Links stay links, and what they lead to is written") {
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        const Decks decks;
        make_file(decks.file("out.inp"), "old");
        fs::create_symlink("out.inp", decks.path() / "link");
        fs::create_symlink("new.inp", decks.path() / "dangling");
        CHECK(run_tool(decks.path(), with(command, "link")) == ToolRun{0, ""});
        CHECK(run_tool(decks.path(), with(command, "dangling")) == ToolRun{0, ""});
        CHECK(fs::is_symlink(decks.path() / "link"));
        CHECK(fs::is_symlink(decks.path() / "dangling"));
        CHECK(content(decks.file("out.inp")) != "old");
        CHECK(content(decks.file("new.inp")) == content(decks.file("out.inp")));
        CHECK(decks.names() == Names{"a.inp", "b.inp", "dangling", "link", "new.inp", "out.inp"});
    }
}

TEST_CASE("A pipe is not edited in place") {
    std::vector<Words> commands = in_place;
    commands.push_back({"check", "--fix", "a.inp"});
    for (const Words& command : commands) {
        CAPTURE(shown(command));
        const Decks decks;
        fs::remove(decks.file("a.inp"));
        REQUIRE(::mkfifo(decks.file("a.inp").c_str(), 0600) == 0);
        CHECK(run_tool(decks.path(), command) ==
              ToolRun{2, "gms-inp: error: cannot edit what is no regular file in place: a.inp\n"});
        CHECK(fs::is_fifo(decks.path() / "a.inp"));
    }
}

TEST_CASE("An output that is a pipe gets the deck and stays a pipe") {
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        const Decks decks;
        REQUIRE(::mkfifo(decks.file("pipe").c_str(), 0600) == 0);
        CHECK(run_tool(decks.path(), with(command, "out.inp")) == ToolRun{0, ""});
        std::string seen;
        std::thread reader([&] { seen = content(decks.file("pipe")); });
        const ToolRun run = run_tool(decks.path(), with(command, "pipe"));
        reader.join();
        CHECK(run == ToolRun{0, ""});
        CHECK(seen == content(decks.file("out.inp")));
        CHECK(fs::is_fifo(decks.path() / "pipe"));
    }
}

TEST_CASE("A deck that cannot be read is named and nothing is written" *
          doctest::skip(out_of_reach)) {
    const Decks decks;
    decks.set_modes(0777, 0);
    const ToolRun refused{2, "gms-inp: error: cannot read a.inp: Permission denied\n"};
    for (const Words& command : in_place) {
        CAPTURE(shown(command));
        CHECK(run_tool(decks.path(), command, nurl::test::become_ordinary_user) == refused);
    }
    for (const Words& command : to_output) {
        CAPTURE(shown(command));
        CHECK(run_tool(decks.path(), with(command, "out.inp"), nurl::test::become_ordinary_user) ==
              refused);
    }
    CHECK(decks.names() == Names{"a.inp", "b.inp"});
}
