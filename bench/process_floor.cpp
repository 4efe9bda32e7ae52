// The least that a run of gms-inp over a large deck can do, as a process of its own: it pays for
// starting and for memory that it has not used before, as every process does.
//
//   bench_process_floor check FILE            reads the file, finds its line ends, loads the schema
//   bench_process_floor set FILE OUTPUT       reads the file and writes it as safely as gms-inp
//   does
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>

#include "lines.hpp"
#include "schema/loader.hpp"

namespace {

std::string read_file(const std::string& path) {
    std::string text(std::filesystem::file_size(path), '\0');
    std::ifstream(path).read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

void flush_and_close(int file) {
    ::fsync(file);
    ::close(file);
}

/// Writes beside the target, flushes, puts the new file in its place, and flushes the folder.
void write_file_safely(const std::string& path, std::string_view text) {
    const std::string beside = path + ".new";
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    while (!text.empty()) {
        const auto written = ::write(file, text.data(), text.size());
        if (written <= 0) throw std::runtime_error("cannot write " + beside);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    flush_and_close(file);
    std::filesystem::rename(beside, path);
    flush_and_close(::open(std::filesystem::path(path).parent_path().c_str(), O_RDONLY));
}

}  // namespace

int main(int argc, char** argv) {
    const std::string_view work = argc > 2 ? argv[1] : "";
    if (work == "check") {
        const std::size_t lines = nurl::bench::count_lines(read_file(argv[2]));
        const auto table = nurl::input::gamess::schema::load_schema(NURL_BENCH_SCHEMA);
        return lines > 0 && !table.empty() ? 0 : 1;
    }
    if (work != "set" || argc < 4) return 2;
    write_file_safely(argv[3], read_file(argv[2]));
    return 0;
}
