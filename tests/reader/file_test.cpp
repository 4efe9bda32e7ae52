#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <doctest/doctest.h>

#include "reader/reading.hpp"
#include "support/temporary_directory.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;
namespace fs = std::filesystem;

namespace {

ParseResult failed_to_open(const std::string& path) {
    ParseResult result;
    result.error = "Failed to open file: " + path;
    return result;
}

/// A deck whose group `$PCM` has so many lines.
std::string long_deck(std::size_t lines) {
    std::string text = "$PCM\n";
    for (std::size_t i = 0; i < lines; ++i) text += " KEY" + std::to_string(i) + "=value\n";
    return text + "$END\n";
}

}  // namespace

TEST_CASE("A file is read as its text is") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    const std::string text = "$CONTRL SCFTYP=UHF $END\n$DATA\nTitle\nC1\nH 1.0 0.0 0.0 0.7\n $END";
    make_file(path, text);
    const ParseResult result = parse_file(path);
    CHECK(result.ok);
    CHECK(result.input.control.scftyp == "UHF");
    CHECK(result.input.atoms.size() == 1);
    CHECK(result == parse_string(text));
}

TEST_CASE("A file is read to its last byte and no further") {
    const TemporaryDirectory directory;
    for (const std::string text : {" $VEC\n 1  1 0.5", " $VEC\n", " $VEC", " $SCF A=1"}) {
        CAPTURE(text);
        make_file(directory.file("deck.inp"), text);
        CHECK(parse_file(directory.file("deck.inp")).input.sections ==
              parse_string(text).input.sections);
    }
}

TEST_CASE("A path that names nothing gives an error with the path") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("missing.inp");
    CHECK(parse_file(path) == failed_to_open(path));
    CHECK(parse_file("no/such folder/deck.inp") == failed_to_open("no/such folder/deck.inp"));
    CHECK(parse_file("./no//such/../x.inp") == failed_to_open("./no//such/../x.inp"));
    CHECK(parse_file(" missing ") == failed_to_open(" missing "));
    CHECK(parse_file("") == failed_to_open(""));
}

TEST_CASE("A directory gives the error of a file that cannot be opened") {
    const TemporaryDirectory directory;
    const std::string path = directory.path().string();
    CHECK(parse_file(path) == failed_to_open(path));
    CHECK(parse_file("/") == failed_to_open("/"));
}

TEST_CASE("A path with a NUL is not that of the file in front of the NUL") {
    const TemporaryDirectory directory;
    make_file(directory.file("deck.inp"), "$CONTRL $END");
    const std::string path = directory.file("deck.inp") + std::string("\0.old", 5);
    CHECK(parse_file(path) == failed_to_open(path));
}

TEST_CASE("A file that opens but cannot be read gives the error of one that cannot be opened") {
    // The memory at address 0 belongs to nobody, so reading it is an I/O error.
    CHECK(parse_file("/proc/self/mem") == failed_to_open("/proc/self/mem"));
}

TEST_CASE("A file without read permission gives an error" * doctest::skip(::geteuid() == 0)) {
    const TemporaryDirectory directory;
    const std::string path = directory.file("secret.inp");
    make_file(path, "$PCM $END\n");
    fs::permissions(path, fs::perms::none);
    CHECK(parse_file(path) == failed_to_open(path));
}

TEST_CASE("An empty file is a text without groups") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("empty.inp");
    make_file(path, "");
    ParseResult expected;
    expected.error = "The input does not contain any GAMESS sections";
    CHECK(parse_file(path) == expected);
    CHECK(parse_file("/dev/null") == expected);
}

TEST_CASE("A file with CR LF and a byte-order mark reads like one without") {
    const TemporaryDirectory directory;
    const std::string plain = directory.file("plain.inp");
    const std::string other = directory.file("other.inp");
    make_file(plain, "$PCM A=1\n words\n$END\n$DATA\nTitle\nC1\n\n S 3\n $END\n");
    make_file(other,
              "\xEF\xBB\xBF$PCM A=1\r\n words\r\n$END\r\n$DATA\r\nTitle\r\nC1\r\n\r\n S 3\r\n"
              " $END\r\n");
    CHECK(parse_file(plain).ok);
    CHECK(parse_file(other) == parse_file(plain));
}

TEST_CASE("NUL and bytes above ASCII in a file are read") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("bytes.inp");
    const std::string value{"x\0\x1A\xFFy", 5};
    make_file(path, "$PCM A=" + value + " $END\n");
    CHECK(parse_file(path).input.sections == Sections{{"PCM", {{"A", value}}, {}}});
}

TEST_CASE("A large file is read to its end") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("large.inp");
    make_file(path, long_deck(200000));
    const ParseResult result = parse_file(path);
    REQUIRE(result.input.sections.size() == 1);
    CHECK(result.input.sections[0].entries.size() == 200000);
    CHECK(result.input.sections[0].entries.back() == KeyValue{"KEY199999", "value"});
    CHECK(result.warnings == Lines{});
}

TEST_CASE("A file whose size is not known in advance is read to its end") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("pipe");
    REQUIRE(::mkfifo(path.c_str(), 0600) == 0);
    std::thread writer([&path] { std::ofstream(path) << long_deck(20000); });
    const ParseResult result = parse_file(path);
    writer.join();
    REQUIRE(result.input.sections.size() == 1);
    CHECK(result.input.sections[0].entries.size() == 20000);
    CHECK(result.warnings == Lines{});
}

TEST_CASE("Links and odd names are followed as given") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("a deck \xC3\xA4.inp");
    make_file(path, "$PCM A=1 $END\n");
    CHECK(parse_file(path).ok);
    fs::create_symlink(path, directory.file("link"));
    CHECK(parse_file(directory.file("link")) == parse_file(path));
    CHECK(parse_file(directory.file("./link")) == parse_file(path));
}
