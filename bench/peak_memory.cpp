// Prints as JSON how much memory reading a deck takes at its worst, beside what cannot be avoided:
// the text and the document. A program of its own, so that nothing has used the heap before.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <malloc.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "decks.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace gamess = nurl::input::gamess;

namespace {

constexpr std::size_t orbital_bytes = 20'000'000;

/// A size that /proc/self/status gives, in bytes.
std::size_t status_bytes(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != name + ':') {
    }
    std::size_t kilobytes = 0;
    status >> kilobytes;
    return kilobytes * 1024;
}

/// Makes the deck in another process, whose memory is not ours.
void make_deck(const std::filesystem::path& path) {
    if (::fork() == 0) {
        std::ofstream(path) << nurl::bench::orbital_deck(orbital_bytes);
        std::_Exit(0);
    }
    ::wait(nullptr);
}

}  // namespace

int main() {
    // Blocks that are freed stay, so that what is in use at the end is the document alone.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    const auto path = std::filesystem::temp_directory_path() /
                      ("gms-inp-peak-" + std::to_string(::getpid()) + ".inp");
    make_deck(path);
    const std::size_t deck_bytes = std::filesystem::file_size(path);
    // The schema is loaded once for all decks of a process and is no part of any.
    static_cast<void>(gamess::parse_string(" $CONTRL $END\n"));

    const std::size_t resident_before = status_bytes("VmRSS");
    const std::size_t heap_before = mallinfo2().uordblks;
    const gamess::ParseResult result = gamess::parse_file(path);
    const std::size_t peak = status_bytes("VmHWM") - resident_before;
    const std::size_t document = mallinfo2().uordblks - heap_before;
    std::filesystem::remove(path);
    std::cout << R"({"peak": )" << peak << R"(, "floor": )" << deck_bytes + document << "}\n";
    return result.ok ? 0 : 1;
}
