#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "faults/decks.hpp"
#include "faults/fail_each.hpp"
#include "faults/open_files.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using nurl::test::fail_each_allocation_of;
using nurl::test::open_files;
using nurl::test::TemporaryDirectory;

TEST_CASE("Reading a text runs out of memory cleanly at each of its allocations") {
    for (const auto& deck : nurl::test::decks_to_read) {
        CAPTURE(deck.name);
        fail_each_allocation_of([&deck] { return parse_string(deck.text); });
    }
}

TEST_CASE("Reading a file runs out of memory cleanly and closes the file") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("a deck with a long name.inp");
    nurl::test::make_file(path, nurl::test::whole_deck);
    const std::size_t files = open_files();
    fail_each_allocation_of([&path] { return parse_file(path); });
    CHECK(open_files() == files);
}

TEST_CASE("A file that cannot be opened gives its message or runs out of memory") {
    const TemporaryDirectory directory;
    for (const std::string& path :
         {directory.file("missing.inp"), directory.path().string(), std::string{}}) {
        CAPTURE(path);
        REQUIRE(parse_file(path).error == "Failed to open file: " + path);
        fail_each_allocation_of([&path] { return parse_file(path); });
    }
}

TEST_CASE("Scanning group text runs out of memory cleanly") {
    fail_each_allocation_of([] {
        return detail::scan_key_values(
            "first_of_the_keywords(1,(2))=a value of many words, second = ((x)) THIRD(=4 $END");
    });
}
