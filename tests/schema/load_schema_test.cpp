#include <filesystem>
#include <string>

#include <doctest/doctest.h>

#include "schema/read_text.hpp"
#include "support/temporary_directory.hpp"

using nurl::input::gamess::schema::load_schema;
using nurl::test::make_file;
using nurl::test::read_text;
using nurl::test::TemporaryDirectory;

TEST_CASE("A schema file is read as its text") {
    const TemporaryDirectory directory;
    for (const char* text : {"", "sections:\n  a:\n    parse_mode: raw\n",
                             "\xEF\xBB\xBFsections:\r\n  a:\r\n    entries:\r\n      x:"}) {
        CAPTURE(text);
        make_file(directory.path() / "schema.yaml", text);
        CHECK(load_schema(directory.file("schema.yaml")) == read_text(text));
    }
}

TEST_CASE("A schema file may be named through a symbolic link") {
    const TemporaryDirectory directory;
    make_file(directory.path() / "schema.yaml", "sections:\n  a:\n");
    std::filesystem::create_symlink("schema.yaml", directory.path() / "link.yaml");
    CHECK(load_schema(directory.file("link.yaml")).contains("a"));
}

TEST_CASE("A path that cannot be opened or read gives the built-in groups") {
    const TemporaryDirectory directory;
    for (const std::string& path :
         {std::string{}, directory.file("missing.yaml"), directory.file("missing/schema.yaml"),
          directory.path().string(), std::string(5000, 'x')}) {
        CAPTURE(path);
        CHECK(load_schema(path) == read_text(""));
    }
}

TEST_CASE("A schema file is read anew on every load") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("schema.yaml");
    CHECK(load_schema(path).size() == 23);
    make_file(path, "sections:\n  a:\n");
    CHECK(load_schema(path).size() == 24);
    make_file(path, "sections:\n  a:\n  b:\n");
    CHECK(load_schema(path).size() == 25);
}
