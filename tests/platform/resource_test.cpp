#include "nurl/core/resource.hpp"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <limits>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <doctest/doctest.h>

#include "platform/resource_probe.hpp"
#include "platform/temporary_directory.hpp"

using nurl::core::resource::getenv_string;
using nurl::core::resource::is_regular_file_path;
using nurl::core::resource::search_file;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;
using std::filesystem::path;

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

/// Changes the current directory, and goes back at the end.
class CurrentDirectory {
public:
    explicit CurrentDirectory(const path& directory) : before_(std::filesystem::current_path()) {
        std::filesystem::create_directories(directory);
        std::filesystem::current_path(directory);
    }
    CurrentDirectory(const CurrentDirectory&) = delete;
    CurrentDirectory& operator=(const CurrentDirectory&) = delete;
    CurrentDirectory(CurrentDirectory&&) = delete;
    CurrentDirectory& operator=(CurrentDirectory&&) = delete;
    ~CurrentDirectory() { std::filesystem::current_path(before_); }

private:
    path before_;
};

path program_directory() { return std::filesystem::canonical("/proc/self/exe").parent_path(); }

path probe_directory() {
    return std::filesystem::canonical(NURL_TEST_RESOURCE_PROBE).parent_path();
}

/// What `search_file` finds when it is linked into a library in a directory of its own.
std::string search_from_library(const std::vector<std::string>& candidates, int parent_levels) {
    void* const library = ::dlopen(NURL_TEST_RESOURCE_PROBE, RTLD_NOW | RTLD_LOCAL);
    REQUIRE(library != nullptr);
    void* const symbol = ::dlsym(library, "nurl_test_search_file");
    REQUIRE(symbol != nullptr);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): how a symbol becomes a function
    auto* const search = reinterpret_cast<decltype(&nurl_test_search_file)>(symbol);
    std::string found;
    search(&candidates, parent_levels, &found);
    ::dlclose(library);
    return found;
}

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

TEST_CASE("A relative explicit path comes back as it was given") {
    const TemporaryDirectory directory;
    make_file(directory.file("data.txt"), "");
    const CurrentDirectory current(directory.path());
    CHECK(search_file(nullptr, {}, "./data.txt", {}, 0) == "./data.txt");
}

TEST_CASE("The nearest root wins over the earlier candidate") {
    const TemporaryDirectory directory;
    make_file(directory.path() / "near" / "second", "");
    make_file(directory.path() / "far" / "first", "");
    make_file(directory.path() / "far" / "second", "");
    const std::vector<std::string> candidates{"first", "second"};
    const std::string near = directory.file("near");
    const std::string far = directory.file("far");
    CHECK(search_file(nullptr, candidates, "", {near, far}, 0) == near + "/second");
    CHECK(search_file(nullptr, candidates, "", {far, near}, 0) == far + "/first");
    const CurrentDirectory current(near);
    CHECK(search_file(nullptr, candidates, "", {far}, 0) == far + "/first");
    CHECK(search_file(nullptr, candidates, "", {}, 0) == near + "/second");
}

TEST_CASE("A directory is not taken for the file") {
    const TemporaryDirectory directory;
    std::filesystem::create_directories(directory.path() / "one" / "data");
    make_file(directory.path() / "two" / "data", "");
    const std::vector<std::string> roots{directory.file("one"), directory.file("two")};
    CHECK(search_file(nullptr, {"data"}, "", roots, 0) == directory.file("two/data"));
    CHECK(search_file(nullptr, {"", "."}, "", roots, 0).empty());
}

TEST_CASE("Extra roots are searched without their parents and an empty one not at all") {
    const TemporaryDirectory directory;
    const CurrentDirectory elsewhere(directory.path() / "elsewhere" / "below");
    make_file(directory.path() / "only-here" / "data", "");
    const std::string below = directory.file("only-here/below");
    std::filesystem::create_directory(below);
    CHECK(search_file(nullptr, {"data"}, "", {below}, 6).empty());
    const std::string in_current = directory.file("elsewhere/below/data");
    make_file(in_current, "");
    CHECK(search_file(nullptr, {"data"}, "", {""}, 0) == in_current);
}

TEST_CASE("Parents of the current directory are searched up to the limit and not beyond") {
    const TemporaryDirectory directory;
    make_file(directory.file("data"), "");
    const CurrentDirectory current(directory.path() / "1" / "2" / "3");
    const std::string candidate = directory.path().filename().string() + "/data";
    CHECK(search_file(nullptr, {"data"}, "", {}, 3) == directory.file("data"));
    CHECK(search_file(nullptr, {"data"}, "", {}, 2).empty());
    CHECK(search_file(nullptr, {candidate}, "", {}, 4) == directory.file("data"));
    CHECK(search_file(nullptr, {candidate}, "", {}, 3).empty());
    CHECK(search_file(nullptr, {candidate}, "", {}, std::numeric_limits<int>::max()) ==
          directory.file("data"));
    make_file(directory.path() / "1" / "data", "");
    CHECK(search_file(nullptr, {"data"}, "", {}, 6) == directory.file("1/data"));
}

TEST_CASE("A negative number of parents is none") {
    const TemporaryDirectory directory;
    make_file(directory.file("data"), "");
    const CurrentDirectory current(directory.path() / "below");
    CHECK(search_file(nullptr, {"data"}, "", {}, -1).empty());
    make_file(directory.path() / "below" / "data", "");
    CHECK(search_file(nullptr, {"data"}, "", {}, -1) == directory.file("below/data"));
}

TEST_CASE("A current directory that was removed is left out") {
    const TemporaryDirectory directory;
    make_file(directory.file("root/data"), "");
    const CurrentDirectory current(directory.path() / "gone");
    std::filesystem::remove(directory.path() / "gone");
    CHECK(search_file(nullptr, {"data"}, "", {}, 6).empty());
    CHECK(search_file(nullptr, {"data"}, "", {directory.file("root")}, 6) ==
          directory.file("root/data"));
}

TEST_CASE("The directory of the program and its parents are searched") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_program(program_directory());
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_program.file("data"), "");
    const std::string near = beside_program.path().filename().string() + "/data";
    const std::string far = program_directory().filename().string() + "/" + near;
    CHECK(search_from_library({near}, 0) == beside_program.file("data"));
    CHECK(search_from_library({far}, 0).empty());
    CHECK(search_from_library({far}, 1) == beside_program.file("data"));
}

TEST_CASE("The directory of the library and its parents are searched") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_library(probe_directory());
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_library.file("data"), "");
    const std::string near = beside_library.path().filename().string() + "/data";
    const std::string far = "../" + probe_directory().filename().string() + "/" + near;
    CHECK(search_from_library({near}, 0) == beside_library.file("data"));
    CHECK(search_file(nullptr, {near}, "", {}, 0).empty());
    CHECK_FALSE(search_from_library({far}, 0).empty());
}

TEST_CASE("The current directory comes before the program and that before the library") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_library(probe_directory());
    const std::string name = beside_library.path().filename().string();
    const path beside_program = program_directory() / name;
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_library.file("data"), "");
    CHECK(search_from_library({name + "/data"}, 0) == beside_library.file("data"));
    make_file(beside_program / "data", "");
    const std::string before_library = search_from_library({name + "/data"}, 0);
    make_file(elsewhere.path() / name / "data", "");
    const std::string before_program = search_from_library({name + "/data"}, 0);
    std::filesystem::remove_all(beside_program);
    CHECK(before_library == (beside_program / "data").string());
    CHECK(before_program == elsewhere.file(name + "/data"));
}
