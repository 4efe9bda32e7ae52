// Decks in files.
#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

/// A file of this process that goes with the object.
class TemporaryFile {
public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile(TemporaryFile&&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    ~TemporaryFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    [[nodiscard]] const std::string& path() const noexcept { return path_; }

private:
    std::string path_ =
        std::filesystem::temp_directory_path() / ("growth-" + std::to_string(getpid()) + ".inp");
};

void read(const Input& input) {
    const TemporaryFile file;
    std::ofstream{file.path()} << input.text;
    require(measured([&] { return nurl::input::gamess::parse_file(file.path()); }).ok);
}

void save(const Input& input) {
    const TemporaryFile file;
    const auto document = nurl::input::gamess::parse_string(input.text).input;
    require(measured([&] { return document.write_file(file.path()), true; }));
    require(std::filesystem::file_size(file.path()) >= input.n);
}

constexpr auto families = std::to_array<Family>({
    {"read a file of n groups", {"", " $G% A=1 $END\n"}, read, things},
    {"read a file of one line of n bytes", {" $SCF A=", "x", " $END\n"}, read, swift_bytes},
    {"save n groups to a file", {"", " $G% A=1 $END\n"}, save, things},
    {"save a value of n bytes to a file", {" $SCF A=", "x", " $END\n"}, save, swift_bytes},
});

}  // namespace

std::span<const Family> file_families() noexcept { return families; }

}  // namespace nurl::bench::growth
