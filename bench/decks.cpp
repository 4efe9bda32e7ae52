#include "decks.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace nurl::bench {

namespace {

constexpr std::size_t columns = 80;
constexpr std::size_t pairs_a_line = 5;
constexpr std::size_t words_a_line = 9;
constexpr int lines_a_group = 20;

/// A number with leading blanks, as decks are punched.
std::string right(std::size_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

/// A number with leading zeros.
std::string zeros(std::size_t number, std::size_t width) {
    std::string text = right(number, width);
    std::ranges::replace(text, ' ', '0');
    return text;
}

/// A coordinate in 16 columns.
std::string coordinate(double value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, 10);
    const std::string digits{buffer.data(), end.ptr};
    return std::string(16 - std::min<std::size_t>(16, digits.size()), ' ') + digits;
}

}  // namespace

std::string orbital_deck(std::size_t bytes) {
    std::string text = " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n $VEC\n";
    const std::string numbers =
        " 1.23456789E-01-9.87654321E-02 5.00000000E+00-3.33333333E-01 1.0E-03 7";
    for (std::size_t line = 1; text.size() < bytes; ++line) {
        std::string row = right(line % 100, 2) + right(line % 1000, 3) + numbers;
        row.resize(columns, ' ');
        row.back() = '1';
        text += row + '\n';
    }
    return text + " $END\n";
}

std::string atom_deck(std::size_t atoms) {
    std::string text = " $CONTRL SCFTYP=RHF $END\n $DATA\na large molecule\nC1\n";
    for (std::size_t i = 0; i < atoms; ++i) {
        const auto x = static_cast<double>(i);
        text += "C     6.0" + coordinate(0.37 * x - 900.0) + coordinate(1.1234567891 - 0.01 * x) +
                coordinate(0.001 * x) + '\n';
    }
    return text + " $END\n";
}

std::string keyword_deck(std::size_t bytes) {
    std::string text;
    std::size_t number = 0;
    while (text.size() < bytes) {
        text += " $FORCE\n";
        for (int line = 0; line < lines_a_group; ++line) {
            for (std::size_t pair = 0; pair < pairs_a_line; ++pair)
                text += " key" + zeros(pair, 3) + "=val" + zeros(++number % 100000, 5);
            text += '\n';
        }
        text += " $END\n";
    }
    return text;
}

std::string list_deck(std::size_t bytes) {
    std::string text = " $FMO\n NFRAG=1000\n INDAT(1)=\n";
    std::size_t number = 0;
    while (text.size() < bytes) {
        for (std::size_t word = 0; word < words_a_line; ++word)
            text += right(++number % 1000000, 8);
        text += '\n';
    }
    return text + " $END\n";
}

std::string wide_group_deck(std::size_t keywords) {
    std::string text = " $FORCE\n";
    for (std::size_t i = 0; i < keywords; ++i)
        text += " KEY" + std::to_string(i) + '=' + std::to_string(i) + '\n';
    return text + " $END\n";
}

std::string optimisation_deck() {
    std::string text =
        " $CONTRL SCFTYP=RHF RUNTYP=OPTIMIZE ICHARG=0 MULT=1 COORD=UNIQUE\n"
        "   MAXIT=100 ISPHER=1 DFTTYP=B3LYP $END\n"
        " $SYSTEM TIMLIM=525600 MWORDS=50 $END\n"
        " $BASIS GBASIS=N31 NGAUSS=6 NDFUNC=1 NPFUNC=1 DIFFSP=.TRUE. $END\n"
        " $SCF DIRSCF=.TRUE. DIIS=.TRUE. SOSCF=.FALSE. $END\n"
        " $STATPT NSTEP=50 OPTTOL=0.0001 METHOD=QA HSSEND=.TRUE. $END\n"
        " $GUESS GUESS=HUCKEL $END\n"
        " $FORCE METHOD=ANALYTIC VIBANL=.TRUE. $END\n"
        " $DFT NRAD=96 NLEB=302 $END\n"
        " $DATA\na molecule of twenty-seven atoms\nC1\n";
    for (int i = 0; i < 27; ++i)
        text += (i % 3 == 0 ? "C     6.0" : "H     1.0") + coordinate(0.7 * i) +
                coordinate(1.25 - 0.3 * i) + coordinate(0.1 * i) + '\n';
    return text + " $END\n";
}

}  // namespace nurl::bench
