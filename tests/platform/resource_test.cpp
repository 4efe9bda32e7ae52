#include "nurl/core/resource.hpp"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <doctest/doctest.h>

#include "support/temporary_directory.hpp"

using nurl::core::resource::getenv_string;
using nurl::core::resource::is_regular_file_path;
using nurl::core::resource::search_file;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;

namespace {

constexpr const char* variable_name = "NURL_TEST_RESOURCE";

/// Sets the variable, and unsets it at the end.
class Variable {
public:
    explicit Variable(const std::string& value) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): a test has one thread
        REQUIRE(::setenv(variable_name, value.c_str(), 1) == 0);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    Variable(Variable&&) = delete;
    Variable& operator=(Variable&&) = delete;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): a test has one thread
    ~Variable() { ::unsetenv(variable_name); }
};

}  // namespace

TEST_CASE("An environment variable gives its value and nothing when it is not set") {
    CHECK(getenv_string(variable_name).empty());
    {
        const Variable variable("a value");
        CHECK(getenv_string(variable_name) == "a value");
    }
    {
        const Variable variable("");
        CHECK(getenv_string(variable_name).empty());
    }
    CHECK(getenv_string("").empty());
    CHECK(getenv_string(nullptr).empty());
}

TEST_CASE("Only an existing regular file is one") {
    const TemporaryDirectory directory;
    make_file(directory.file("file"), "");
    std::filesystem::create_symlink("file", directory.path() / "link");
    std::filesystem::create_symlink("missing", directory.path() / "dangling");
    std::filesystem::create_symlink("circle", directory.path() / "circle");
    REQUIRE(::mkfifo(directory.file("pipe").c_str(), 0600) == 0);
    CHECK(is_regular_file_path(directory.file("file")));
    CHECK(is_regular_file_path(directory.file("link")));
    for (const std::string& other :
         {directory.file("dangling"), directory.file("circle"), directory.file("pipe"),
          directory.file("missing"), directory.file("file/"), directory.file("file/below"),
          directory.path().string(), std::string(), std::string("/dev/null"),
          std::string(5000, 'n'), directory.file("file") + '\0',
          directory.file("file") + '\0' + "x"}) {
        CAPTURE(other);
        CHECK_FALSE(is_regular_file_path(other));
    }
}

TEST_CASE("The explicit path comes first and the variable second and candidates last") {
    const TemporaryDirectory directory;
    for (const char* name : {"explicit", "variable", "root/candidate"}) {
        make_file(directory.path() / name, "");
    }
    const std::vector<std::string> roots{directory.file("root")};
    const Variable variable(directory.file("variable"));
    const std::string explicit_path = directory.file("explicit");
    CHECK(search_file(variable_name, {"candidate"}, explicit_path, roots, 0) == explicit_path);
    CHECK(search_file(variable_name, {"candidate"}, "", roots, 0) == directory.file("variable"));
    CHECK(search_file(nullptr, {"candidate"}, "", roots, 0) == directory.file("root/candidate"));
    CHECK(search_file("", {"candidate"}, "", roots, 0) == directory.file("root/candidate"));
}

TEST_CASE("What is named but is no regular file is passed over") {
    const TemporaryDirectory directory;
    make_file(directory.path() / "root" / "candidate", "");
    std::filesystem::create_directory(directory.path() / "folder");
    const std::vector<std::string> roots{directory.file("root")};
    const std::string found = directory.file("root/candidate");
    {
        const Variable variable(directory.file("missing"));
        CHECK(search_file(variable_name, {"candidate"}, directory.file("folder"), roots, 0) ==
              found);
    }
    {
        const Variable variable(directory.file("folder"));
        CHECK(search_file(variable_name, {"candidate"}, directory.file("missing"), roots, 0) ==
              found);
    }
}

TEST_CASE("A directory is not taken for the file") {
    const TemporaryDirectory directory;
    std::filesystem::create_directories(directory.path() / "one" / "nurl-test-data");
    make_file(directory.path() / "two" / "nurl-test-data", "");
    const std::vector<std::string> roots{directory.file("one"), directory.file("two")};
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", roots, 0) ==
          directory.file("two/nurl-test-data"));
    CHECK(search_file(nullptr, {"", "."}, "", roots, 0).empty());
}
