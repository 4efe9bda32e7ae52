#include <dlfcn.h>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/core/resource.hpp"
#include "platform/resource_probe.hpp"
#include "support/temporary_directory.hpp"

using nurl::core::resource::search_file;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;
using std::filesystem::path;

namespace {

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

TEST_CASE("Extra roots are searched without their parents and an empty one not at all") {
    const TemporaryDirectory directory;
    const CurrentDirectory elsewhere(directory.path() / "elsewhere" / "below");
    make_file(directory.path() / "only-here" / "nurl-test-data", "");
    const std::string below = directory.file("only-here/below");
    std::filesystem::create_directory(below);
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {below}, 6).empty());
    const std::string in_current = directory.file("elsewhere/below/nurl-test-data");
    make_file(in_current, "");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {""}, 0) == in_current);
}

TEST_CASE("Parents of the current directory are searched up to the limit and not beyond") {
    const TemporaryDirectory directory;
    make_file(directory.file("base/nurl-test-data"), "");
    const CurrentDirectory current(directory.path() / "base" / "1" / "2" / "3");
    const std::string found = directory.file("base/nurl-test-data");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, 3) == found);
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, 2).empty());
    CHECK(search_file(nullptr, {"base/nurl-test-data"}, "", {}, 4) == found);
    CHECK(search_file(nullptr, {"base/nurl-test-data"}, "", {}, 3).empty());
    CHECK(search_file(nullptr, {"base/nurl-test-data"}, "", {}, std::numeric_limits<int>::max()) ==
          found);
    make_file(directory.file("base/1/nurl-test-data"), "");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, 6) ==
          directory.file("base/1/nurl-test-data"));
}

TEST_CASE("A negative number of parents is none") {
    const TemporaryDirectory directory;
    make_file(directory.file("nurl-test-data"), "");
    const CurrentDirectory current(directory.path() / "below");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, -1).empty());
    make_file(directory.path() / "below" / "nurl-test-data", "");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, -1) ==
          directory.file("below/nurl-test-data"));
}

TEST_CASE("A current directory that was removed is left out") {
    const TemporaryDirectory directory;
    make_file(directory.file("root/nurl-test-data"), "");
    const CurrentDirectory current(directory.path() / "gone");
    std::filesystem::remove(directory.path() / "gone");
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {}, 6).empty());
    CHECK(search_file(nullptr, {"nurl-test-data"}, "", {directory.file("root")}, 6) ==
          directory.file("root/nurl-test-data"));
}

TEST_CASE("The directory of the program and its parents are searched") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_program(program_directory());
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_program.file("nurl-test-data"), "");
    const std::string near = beside_program.path().filename().string() + "/nurl-test-data";
    const std::string far = program_directory().filename().string() + "/" + near;
    CHECK(search_from_library({near}, 0) == beside_program.file("nurl-test-data"));
    CHECK(search_from_library({far}, 0).empty());
    CHECK(search_from_library({far}, 1) == beside_program.file("nurl-test-data"));
}

TEST_CASE("The directory of the library and its parents are searched") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_library(probe_directory());
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_library.file("nurl-test-data"), "");
    const std::string near = beside_library.path().filename().string() + "/nurl-test-data";
    const std::string far = "../" + probe_directory().filename().string() + "/" + near;
    CHECK(search_from_library({near}, 0) == beside_library.file("nurl-test-data"));
    CHECK(search_file(nullptr, {near}, "", {}, 0).empty());
    CHECK_FALSE(search_from_library({far}, 0).empty());
}

TEST_CASE("The current directory comes before the program and that before the library") {
    const TemporaryDirectory elsewhere;
    const TemporaryDirectory beside_library(probe_directory());
    const std::string name = beside_library.path().filename().string();
    const path beside_program = program_directory() / name;
    const CurrentDirectory current(elsewhere.path());
    make_file(beside_library.file("nurl-test-data"), "");
    CHECK(search_from_library({name + "/nurl-test-data"}, 0) ==
          beside_library.file("nurl-test-data"));
    make_file(beside_program / "nurl-test-data", "");
    const std::string before_library = search_from_library({name + "/nurl-test-data"}, 0);
    make_file(elsewhere.path() / name / "nurl-test-data", "");
    const std::string before_program = search_from_library({name + "/nurl-test-data"}, 0);
    std::filesystem::remove_all(beside_program);
    CHECK(before_library == (beside_program / "nurl-test-data").string());
    CHECK(before_program == elsewhere.file(name + "/nurl-test-data"));
}
