// Processes that are killed while they replace a file, each at another moment.
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <doctest/doctest.h>

#include "nurl/core/fs.hpp"
#include "support/temporary_directory.hpp"

using nurl::core::fs::write_text_file;
using nurl::test::make_file;
using nurl::test::TemporaryDirectory;

namespace {

constexpr std::size_t size = 2'000'000;
constexpr int kills = 200;

/// How often something was written, in memory that a child shares with the test.
class SharedCount {
public:
    SharedCount()
        : memory_(::mmap(nullptr, sizeof(Count), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                         -1, 0)) {
        REQUIRE(memory_ != MAP_FAILED);
        count_ = new (memory_) Count(0);
    }
    SharedCount(const SharedCount&) = delete;
    SharedCount& operator=(const SharedCount&) = delete;
    SharedCount(SharedCount&&) = delete;
    SharedCount& operator=(SharedCount&&) = delete;
    ~SharedCount() { ::munmap(memory_, sizeof(Count)); }

    /// Steps at the begin of a write and at its end, so that it is odd within one.
    void step() noexcept { ++*count_; }
    [[nodiscard]] bool is_within_write() const noexcept { return *count_ % 2 == 1; }
    [[nodiscard]] bool has_begun() const noexcept { return *count_ > 0; }

private:
    using Count = std::atomic<unsigned>;
    void* memory_;
    Count* count_ = nullptr;
};

/// Starts a process that replaces a file by one text after the other for as long as it lives.
pid_t start_writer(const std::string& path, const std::array<std::string, 3>& texts,
                   SharedCount& writes) {
    const pid_t child = ::fork();
    REQUIRE(child >= 0);
    if (child > 0) return child;
    ::alarm(60);
    for (std::size_t round = 0;; ++round) {
        writes.step();
        const bool written = write_text_file(path, texts[round % texts.size()]);
        writes.step();
        if (!written) ::_exit(1);
    }
}

/// Whether a file is one of the texts as a whole. Reads it at once, which takes less time than
/// `content` does.
bool is_one_of(const std::array<std::string, 3>& texts, const std::string& path) {
    std::string seen(size + 1, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(seen.data(), static_cast<std::streamsize>(seen.size()));
    seen.resize(static_cast<std::size_t>(file.gcount()));
    return std::ranges::find(texts, seen) != texts.end();
}

/// Removes everything but one file. @return whether there was anything else
bool clear_all_but(const TemporaryDirectory& directory, const std::string& name) {
    bool found = false;
    for (const std::string& other : directory.names())
        if (other != name) found = std::filesystem::remove(directory.file(other)) || found;
    return found;
}

}  // namespace

TEST_CASE("A process that is killed while it replaces a file leaves an old text or a new one") {
    const std::array<std::string, 3> texts{std::string(size, 'a'), std::string(size, 'b'),
                                           std::string(size, 'c')};
    const TemporaryDirectory directory;
    const std::string path = directory.file("deck.inp");
    make_file(path, texts[0]);
    int within_write = 0;
    int with_remains = 0;
    int parts = 0;
    for (int kill = 0; kill < kills; ++kill) {
        SharedCount writes;
        const pid_t writer = start_writer(path, texts, writes);
        while (!writes.has_begun()) std::this_thread::yield();
        // Every moment within the time of a few writes, in no order.
        std::this_thread::sleep_for(std::chrono::microseconds(kill * 7919 % kills * 100));
        REQUIRE(::kill(writer, SIGKILL) == 0);
        int status = 0;
        REQUIRE(::waitpid(writer, &status, 0) == writer);
        REQUIRE(WIFSIGNALED(status));
        if (writes.is_within_write()) ++within_write;
        if (clear_all_but(directory, "deck.inp")) ++with_remains;
        if (!is_one_of(texts, path)) ++parts;
    }
    CHECK(parts == 0);
    CHECK(within_write > kills / 2);
    CHECK(with_remains > 0);
    MESSAGE(kills << " kills, " << within_write << " within a write, " << with_remains
                  << " of these with a temporary file there");
}
