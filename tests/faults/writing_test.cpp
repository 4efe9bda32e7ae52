#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "faults/open_files.hpp"
#include "nurl/core/fs.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "nurl/input/gamess/writer.hpp"
#include "support/show_model.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::content;
using nurl::test::fail_each_allocation;
using nurl::test::fail_each_allocation_of;
using nurl::test::make_file;
using nurl::test::open_files;
using nurl::test::TemporaryDirectory;

namespace {

GamessInput read(std::string_view text) { return parse_string(text).input; }

/// A document with groups that were added in code.
GamessInput extended_document() {
    GamessInput deck;
    deck.has_control = true;
    deck.system.emplace().mwords = 100;
    deck.extra_sections.push_back({"a group with a long name", {{"A", ""}}, {"some text"}});
    deck.extra_sections.push_back(
        {"", {{"A KEYWORD OF SOME LENGTH", "a value of some length"}}, {}});
    deck.atoms.push_back({"X", {}, 1e22, -0.0, 0.5});
    return deck;
}

/// A directory with one file, which writing replaces or leaves alone.
class Folder {
public:
    /// Brings the directory back to its first state.
    [[nodiscard]] int prepare() const {
        make_file(path_, "the old text");
        std::filesystem::remove(directory_.file("new.inp"));
        return 0;
    }

    /// The names of the files with what is in them.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> look() const {
        std::vector<std::pair<std::string, std::string>> files;
        for (const std::string& name : directory_.names())
            files.emplace_back(name, content(directory_.file(name)));
        return files;
    }

    [[nodiscard]] std::string file(std::string_view name) const { return directory_.file(name); }

    /// Fails each allocation of a way to write into the directory.
    template <class Write>
    void fail_each_allocation(const Write& write) const {
        const std::size_t files = open_files();
        nurl::test::fail_each_allocation([this] { return prepare(); },
                                         [&write](int /*state*/) { write(); },
                                         [this](int /*state*/) { return look(); });
        CHECK(open_files() == files);
    }

private:
    TemporaryDirectory directory_;
    std::string path_ = directory_.file("old.inp");
};

}  // namespace

TEST_CASE("Writing a deck as text runs out of memory cleanly") {
    for (const auto& deck : nurl::test::decks_to_read) {
        CAPTURE(deck.name);
        const GamessInput document = read(deck.text);
        fail_each_allocation_of([&document] { return document.to_string(); });
    }
    const GamessInput extended = extended_document();
    fail_each_allocation_of([&extended] { return extended.to_string(); });
}

TEST_CASE("Spellings of values run out of memory cleanly") {
    fail_each_allocation_of([] { return units_keyword(Units::Bohr) + format_boolean(true); });
}

TEST_CASE("A deck that memory runs out for leaves the old file whole and no other file") {
    const Folder folder;
    const GamessInput document = read(nurl::test::whole_deck);
    folder.fail_each_allocation([&] { document.write_file(folder.file("old.inp")); });
    CHECK(content(folder.file("old.inp")) == document.to_string());
}

TEST_CASE("A deck that memory runs out for leaves no new file") {
    const Folder folder;
    const GamessInput document = read(nurl::test::whole_deck);
    folder.fail_each_allocation([&] { document.write_file(folder.file("new.inp")); });
    CHECK(content(folder.file("new.inp")) == document.to_string());
}

TEST_CASE("A link that memory runs out for leaves the file behind it whole") {
    const TemporaryDirectory elsewhere;
    const std::string link = elsewhere.file("a link with a long name");
    const Folder folder;
    std::filesystem::create_symlink(folder.file("old.inp"), link);
    folder.fail_each_allocation(
        [&] { static_cast<void>(nurl::core::fs::write_text_file(link, "the new text")); });
    CHECK(content(folder.file("old.inp")) == "the new text");
    CHECK(std::filesystem::is_symlink(link));
    CHECK(elsewhere.names() == std::vector<std::string>{"a link with a long name"});
}

TEST_CASE("The message of a file that cannot be written is given or memory runs out") {
    const GamessInput document = read(" $SCF DIRSCF=.T. $END\n");
    const std::string path = "/dev/null/no such folder/deck.inp";
    fail_each_allocation_of([&]() -> std::string {
        try {
            document.write_file(path);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "written";
    });
}
