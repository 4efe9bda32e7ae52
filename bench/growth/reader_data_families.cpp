// Reading $DATA.
#include <array>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

void read(const Input& input) {
    const auto result = measured([&] { return nurl::input::gamess::parse_string(input.text); });
    require(result.ok && result.input.has_data);
}

constexpr auto families = std::to_array<Family>({
    {"read a $DATA of n lines of one letter", {" $DATA\nt\nC1\n", "x\n", " $END\n"}, read, words},
    {"read a $DATA of n empty lines", {" $DATA\nt\nC1\n", "\n", " $END\n"}, read, words},
    {"read a $DATA of n blank lines before the title", {" $DATA\n", " \n", " $END\n"}, read, words},
    {"read a $DATA of n atoms",
     {" $DATA\nt\nC1\n", "H 1.0 0.0 0.0 %.0\n", " $END\n"},
     read,
     things},
    {"read a $DATA of n atoms of four words",
     {" $DATA\nt\nC1\n", "1 H 1.0 0.0 %.0\n", " $END\n"},
     read,
     things},
    {"read a $DATA of one line of n bytes", {" $DATA\nt\nC1\n", "x", "\n $END\n"}, read, bytes},
    {"read a $DATA of one line of n words",
     {" $DATA\nt\nC1\n", "1.0 ", "\n $END\n"},
     read,
     swift_words},
    {"read a $DATA of one line of n blanks", {" $DATA\nt\nC1\n", " ", "x\n $END\n"}, read, bytes},
    {"read a $DATA of n lone carriage returns", {" $DATA\rt\rC1\r", "x\r", " $END\r"}, read, words},
    {"read a $DATA of n `$` in a line", {" $DATA\nt\nC1\n", "$", "\n $END\n"}, read, bytes},
    {"read a title of n bytes", {" $DATA\n", "t", "\nC1\n $END\n"}, read, swift_bytes},
    {"read a coordinate with n digits",
     {" $DATA\nt\nC1\nH 1.0 0.0 0.0 0.", "3", "\n $END\n"},
     read,
     bytes},
    {"read a coordinate with n digits before the point",
     {" $DATA\nt\nC1\nH 1.0 0.0 0.0 1", "7", ".0\n $END\n"},
     read,
     bytes},
    {"read a coordinate with n zeros before its digits",
     {" $DATA\nt\nC1\nH 1.0 0.0 0.0 0.", "0", "1D0\n $END\n"},
     read,
     bytes},
    {"read a coordinate with an exponent of n digits",
     {" $DATA\nt\nC1\nH 1.0 0.0 0.0 1.0E", "9", "\n $END\n"},
     read,
     bytes},
    {"read a coordinate with n zeros and as many orders of magnitude",
     {" $DATA\nt\nC1\nH 1.0 0.0 0.0 0.", "0", "1D-", "9", "\n $END\n"},
     read,
     bytes},
    {"read an atom index of n digits",
     {" $DATA\nt\nC1\n", "1", " H 1.0 0.0 0.0 0.0\n $END\n"},
     read,
     bytes},
    {"read n groups called $DATA", {"", " $DATA\nt\nC1\nH 1.0 0.0 0.0 0.0\n $END\n"}, read, things},
    {"read n groups called $DATA without $END", {"", " $DATA\n"}, read, things},
});

}  // namespace

std::span<const Family> reader_data_families() noexcept { return families; }

}  // namespace nurl::bench::growth
