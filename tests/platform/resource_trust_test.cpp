// What a search may find for root. The cases for root count as skipped for other users.
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <doctest/doctest.h>

#include "core_resource/trust.hpp"
#include "nurl/core/resource.hpp"
#include "support/temporary_directory.hpp"

using nurl::core::resource::search_file;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;

namespace {

constexpr uid_t somebody = 65534;

bool is_ordinary_user() { return ::geteuid() != 0; }

/// A folder with a folder with a data file, all of the user who runs the tests.
class DataFolder {
public:
    DataFolder() { make_file(file(), ""); }

    [[nodiscard]] std::string top() const { return directory_.path(); }
    [[nodiscard]] std::string folder() const { return directory_.file("share"); }
    [[nodiscard]] std::string file() const { return directory_.file("share/data"); }
    [[nodiscard]] std::string search() const {
        return search_file(nullptr, {"data"}, "", {folder()}, 0);
    }

private:
    TemporaryDirectory directory_;
};

}  // namespace

TEST_CASE("Root finds what only root could have put there" * doctest::skip(is_ordinary_user())) {
    const DataFolder data;
    CHECK(data.search() == data.file());
    ::chmod(data.folder().c_str(), 0775);
    CHECK(data.search() == data.file());
    ::chmod(data.top().c_str(), 01777);
    CHECK(data.search() == data.file());
}

TEST_CASE("Root does not find what others may write" * doctest::skip(is_ordinary_user())) {
    const DataFolder data;
    for (const std::string& path : {data.file(), data.folder(), data.top()}) {
        CAPTURE(path);
        const auto before = std::filesystem::status(path).permissions();
        ::chmod(path.c_str(), 0777);
        CHECK(data.search().empty());
        std::filesystem::permissions(path, before);
        CHECK(data.search() == data.file());
    }
    ::chmod(data.file().c_str(), 01666);
    CHECK(data.search().empty());
}

TEST_CASE("Root does not find what belongs to another user" * doctest::skip(is_ordinary_user())) {
    const DataFolder data;
    for (const std::string& path : {data.file(), data.folder(), data.top()}) {
        CAPTURE(path);
        REQUIRE(::chown(path.c_str(), somebody, 0) == 0);
        CHECK(data.search().empty());
        REQUIRE(::chown(path.c_str(), 0, 0) == 0);
        CHECK(data.search() == data.file());
    }
}

TEST_CASE("Root does not find what another group may write" * doctest::skip(is_ordinary_user())) {
    const DataFolder data;
    REQUIRE(::chown(data.folder().c_str(), 0, somebody) == 0);
    CHECK(data.search() == data.file());
    ::chmod(data.folder().c_str(), 0775);
    CHECK(data.search().empty());
}

TEST_CASE("A link is judged by where it leads" * doctest::skip(is_ordinary_user())) {
    const DataFolder data;
    const TemporaryDirectory others;
    make_file(others.file("data"), "");
    REQUIRE(::chown(others.path().c_str(), somebody, 0) == 0);
    std::filesystem::remove(data.file());
    std::filesystem::create_symlink(others.file("data"), data.file());
    CHECK(data.search().empty());
    REQUIRE(::chown(others.path().c_str(), 0, 0) == 0);
    CHECK(data.search() == data.file());
}

TEST_CASE("A search goes on behind what root does not trust" * doctest::skip(is_ordinary_user())) {
    const DataFolder mine;
    const DataFolder open;
    ::chmod(open.folder().c_str(), 0777);
    CHECK(search_file(nullptr, {"data"}, "", {open.folder(), mine.folder()}, 0) == mine.file());
}

TEST_CASE("What is named is taken as it is, by root too") {
    const DataFolder data;
    ::chmod(data.folder().c_str(), 0777);
    CHECK(search_file(nullptr, {}, data.file(), {}, 0) == data.file());
}

TEST_CASE("Other users find what anybody may write") {
    const DataFolder data;
    std::filesystem::permissions(data.top(), std::filesystem::perms::all);
    ::chmod(data.folder().c_str(), 0777);
    // The effective user alone, so that it can be taken back.
    const uid_t user = ::geteuid();
    if (user == 0) REQUIRE(::seteuid(somebody) == 0);
    const std::string found = data.search();
    if (user == 0) REQUIRE(::seteuid(user) == 0);
    CHECK(found == data.file());
}

TEST_CASE("A file that is not there is not trusted") {
    const TemporaryDirectory directory;
    CHECK_FALSE(nurl::core::resource::only_root_could_write(directory.file("missing")));
}
