#include <cerrno>
#include <filesystem>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/core/fs.hpp"
#include "platform/system_faults.hpp"
#include "support/child_process.hpp"
#include "support/temporary_directory.hpp"

using nurl::core::fs::write_text_file;
using nurl::test::content;
using nurl::test::in_child;
using nurl::test::make_file;
using nurl::test::SystemCall;
using nurl::test::SystemFault;
using nurl::test::TemporaryDirectory;
using Names = std::vector<std::string>;

namespace {

/// What a write gives, in a word.
std::string outcome_of_write(const std::string& path, std::string_view text) {
    return write_text_file(path, text) ? "written" : "refused";
}

/// As `outcome_of_write`, by a user with no rights but those that everybody has.
std::string outcome_for_ordinary_user(const std::string& path) {
    return in_child([&path] {
        nurl::test::become_ordinary_user();
        return outcome_of_write(path, "new");
    });
}

/// Replaces a file while a system call fails. @return what the write gave
bool write_while_failing(SystemCall call, int occurrence, int error, bool lasting = false) {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    const bool written = [&] {
        const SystemFault fault(
            {.call = call, .occurrence = occurrence, .error = error, .lasting = lasting});
        const bool result = write_text_file(path, "new");
        CHECK(fault.was_met());
        return result;
    }();
    CHECK(content(path) == (written ? "new" : "old"));
    CHECK(directory.names() == Names{"deck.inp"});
    return written;
}

}  // namespace

TEST_CASE("Whichever system call fails the file is wholly old or wholly new") {
    for (const auto& system_call : nurl::test::all_system_calls) {
        CAPTURE(system_call.name);
        int met = 0;
        for (bool more = true; more;) {
            const TemporaryDirectory directory;
            const std::string path = directory.file("deck.inp");
            make_file(path, "old");
            bool written = false;
            {
                const SystemFault fault(
                    {.call = system_call.call, .occurrence = met + 1, .error = EIO});
                written = write_text_file(path, "new");
                more = fault.was_met();
            }
            CHECK(content(path) == (written ? "new" : "old"));
            CHECK(directory.names() == Names{"deck.inp"});
            if (more) ++met;
        }
        CHECK(met >= 1);
    }
}

TEST_CASE("Whichever system call fails a new file is there wholly or not at all") {
    for (const auto& system_call : nurl::test::all_system_calls) {
        CAPTURE(system_call.name);
        const TemporaryDirectory directory;
        bool written = false;
        {
            const SystemFault fault({.call = system_call.call, .occurrence = 1, .error = EIO});
            written = write_text_file(directory.file("new.inp"), "new");
        }
        CHECK(directory.names() == (written ? Names{"new.inp"} : Names{}));
        if (written) CHECK(content(directory.file("new.inp")) == "new");
    }
}

TEST_CASE("A step that matters for the text gives false when it fails") {
    CHECK_FALSE(write_while_failing(SystemCall::Write, 1, ENOSPC));
    CHECK_FALSE(write_while_failing(SystemCall::Sync, 1, EIO));
    CHECK_FALSE(write_while_failing(SystemCall::Close, 1, EIO));
    CHECK_FALSE(write_while_failing(SystemCall::Close, 1, EDQUOT));
    CHECK_FALSE(write_while_failing(SystemCall::Rename, 1, EACCES));
    CHECK_FALSE(write_while_failing(SystemCall::ChangeMode, 1, EPERM));
    CHECK_FALSE(write_while_failing(SystemCall::StatAt, 1, EACCES));
    CHECK_FALSE(write_while_failing(SystemCall::AccessAt, 1, EACCES));
}

TEST_CASE("A step interrupted by a signal is taken again") {
    CHECK(write_while_failing(SystemCall::OpenAt, 1, EINTR));
    CHECK(write_while_failing(SystemCall::OpenAt, 2, EINTR));
    CHECK(write_while_failing(SystemCall::Write, 1, EINTR));
    CHECK(write_while_failing(SystemCall::Sync, 1, EINTR));
    CHECK(write_while_failing(SystemCall::Close, 1, EINTR));
}

TEST_CASE("A temporary name that is taken makes room for the next") {
    CHECK(write_while_failing(SystemCall::OpenAt, 2, EEXIST));
}

TEST_CASE("A directory in which every temporary name is taken is refused") {
    CHECK_FALSE(write_while_failing(SystemCall::OpenAt, 2, EEXIST, true));
}

TEST_CASE("A write that takes nothing is not tried for ever") {
    CHECK_FALSE(write_while_failing(SystemCall::Write, 1, 0, true));
}

TEST_CASE("A target that cannot be flushed is written all the same") {
    for (const int error : {EINVAL, EROFS}) {
        CAPTURE(error);
        const SystemFault fault({.call = SystemCall::Sync, .occurrence = 1, .error = error});
        CHECK(write_text_file("/dev/null", "text"));
        CHECK(fault.was_met());
    }
}

TEST_CASE("A file system that cannot flush its directories is no failure") {
    CHECK(write_while_failing(SystemCall::OpenAt, 3, EACCES));
    CHECK(write_while_failing(SystemCall::Sync, 2, EIO));
}

TEST_CASE("A target written directly gives false when its last steps fail") {
    for (const SystemCall call : {SystemCall::Write, SystemCall::Sync, SystemCall::Close}) {
        const SystemFault fault({.call = call, .occurrence = 1, .error = EIO});
        CHECK_FALSE(write_text_file("/dev/null", "text"));
        CHECK(fault.was_met());
    }
    const int file = ::memfd_create("output", MFD_CLOEXEC);
    REQUIRE(file >= 0);
    const bool written = [&] {
        const SystemFault fault({.call = SystemCall::Sync, .occurrence = 1, .error = EIO});
        return write_text_file("/dev/fd/" + std::to_string(file), "text");
    }();
    ::close(file);
    CHECK_FALSE(written);
}

TEST_CASE("Short and interrupted writes add up to the whole text") {
    const TemporaryDirectory directory;
    const SystemFault fault({.faltering = true});
    CHECK(write_text_file(directory.file("deck.inp"), "twelve bytes"));
    CHECK(fault.writes() == 7);
    CHECK(content(directory.file("deck.inp")) == "twelve bytes");
}

TEST_CASE("A file that changes its owner loses the right to run as somebody else") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    REQUIRE(::chmod(path.c_str(), 06755) == 0);
    const SystemFault fault({.call = SystemCall::ChangeOwner, .occurrence = 1, .error = EPERM});
    CHECK(write_text_file(path, "new"));
    CHECK(fault.was_met());
    struct stat status {};
    REQUIRE(::stat(path.c_str(), &status) == 0);
    CHECK((status.st_mode & 07777) == 0755);
}

TEST_CASE("A text beyond the file size limit leaves the old file and nothing beside it") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    const std::string text(5000, 'x');
    CHECK(in_child([&] {
              nurl::test::limit_file_size(1000);
              return outcome_of_write(path, text);
          }) == "refused");
    CHECK(content(path) == "old");
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("A file that its user may not write is not replaced") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    REQUIRE(::chmod(directory.path().c_str(), 0777) == 0);
    REQUIRE(::chmod(path.c_str(), 0444) == 0);
    CHECK(outcome_for_ordinary_user(directory.file("other")) == "written");
    CHECK(outcome_for_ordinary_user(path) == "refused");
    CHECK(content(path) == "old");
    CHECK(directory.names() == Names{"deck.inp", "other"});
}

TEST_CASE("A file in a directory that its user may not write is not replaced") {
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, "old");
    REQUIRE(::chmod(path.c_str(), 0666) == 0);
    REQUIRE(::chmod(directory.path().c_str(), 0555) == 0);
    CHECK(outcome_for_ordinary_user(path) == "refused");
    CHECK(outcome_for_ordinary_user(directory.file("new")) == "refused");
    CHECK(content(path) == "old");
    REQUIRE(::chmod(directory.path().c_str(), 0700) == 0);
    CHECK(outcome_for_ordinary_user(path) == (::geteuid() == 0 ? "refused" : "written"));
    CHECK(directory.names() == Names{"deck.inp"});
}

TEST_CASE("A directory is refused") {
    const TemporaryDirectory directory;
    make_file(directory.path() / "folder" / "inside", "kept");
    std::filesystem::create_symlink("folder", directory.path() / "link");
    CHECK_FALSE(write_text_file(directory.file("folder"), "text"));
    CHECK_FALSE(write_text_file(directory.file("folder/"), "text"));
    CHECK_FALSE(write_text_file(directory.file("link"), "text"));
    CHECK_FALSE(write_text_file(directory.file("."), "text"));
    CHECK_FALSE(write_text_file("/", "text"));
    CHECK(directory.names() == Names{"folder", "link"});
    CHECK(content(directory.path() / "folder" / "inside") == "kept");
}

TEST_CASE("A path whose directory is missing or no directory is refused") {
    const TemporaryDirectory directory;
    make_file(directory.file("file"), "kept");
    std::filesystem::create_symlink("missing/file", directory.path() / "link");
    CHECK_FALSE(write_text_file(directory.file("missing/new.inp"), "text"));
    CHECK_FALSE(write_text_file(directory.file("missing/"), "text"));
    CHECK_FALSE(write_text_file(directory.file("file/new.inp"), "text"));
    CHECK_FALSE(write_text_file(directory.file("file/"), "text"));
    CHECK_FALSE(write_text_file(directory.file("link"), "text"));
    CHECK(directory.names() == Names{"file", "link"});
    CHECK(content(directory.file("file")) == "kept");
}

TEST_CASE("Symbolic links in a circle are refused") {
    const TemporaryDirectory directory;
    std::filesystem::create_symlink("two", directory.path() / "one");
    std::filesystem::create_symlink("one", directory.path() / "two");
    CHECK_FALSE(write_text_file(directory.file("one"), "text"));
    CHECK(directory.names() == Names{"one", "two"});
    CHECK(std::filesystem::is_symlink(directory.path() / "one"));
}

TEST_CASE("A path that can name no file is refused") {
    const TemporaryDirectory directory;
    const std::string with_nul = directory.file("cut") + '\0' + "off";
    CHECK_FALSE(write_text_file("", "text"));
    CHECK_FALSE(write_text_file(with_nul, "text"));
    CHECK_FALSE(write_text_file(directory.file(std::string(256, 'n')), "text"));
    CHECK_FALSE(write_text_file(directory.file(std::string(5000, 'n')), "text"));
    std::string deep = directory.path().string();
    while (deep.size() < 5000) deep += "/d";
    CHECK_FALSE(write_text_file(deep, "text"));
    CHECK(directory.names().empty());
}
