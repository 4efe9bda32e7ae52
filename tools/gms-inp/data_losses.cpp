#include "data_losses.hpp"

#include <array>
#include <charconv>
#include <cstdint>
#include <utility>
#include <vector>

#include "ascii.hpp"

namespace gms_inp {

namespace {

namespace gamess = nurl::input::gamess;

constexpr std::size_t heading_lines = 2;
constexpr std::size_t atom_words = 5;
constexpr int coordinate_decimals = 10;
constexpr int charge_decimals = 6;

/// Whether a number differs from what is left of it after writing that many decimals.
bool is_rounded(double value, int decimals) {
    std::array<char, 512> buffer{};  // the largest double has 309 digits before its point
    char* const first = buffer.data();
    const char* const end =
        std::to_chars(first, first + buffer.size(), value, std::chars_format::fixed, decimals).ptr;
    double written = 0.0;
    std::from_chars(first, end, written);
    return written != value;
}

std::size_t rounded_numbers(const gamess::AtomRecord& atom) {
    std::size_t count = 0;
    for (const double coordinate : {atom.x, atom.y, atom.z}) {
        if (is_rounded(coordinate, coordinate_decimals)) ++count;
    }
    if (is_rounded(atom.nuclear_charge.value_or(0.0), charge_decimals)) ++count;
    return count;
}

bool is_whole_number(std::string_view word) noexcept {
    if (word.starts_with('+')) word.remove_prefix(1);
    std::int32_t value = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    return error == std::errc{} && stop == end;
}

}  // namespace

DataLosses::DataLosses(const gamess::GamessInput& read, LossCounts& counts)
    : read_{read}, counts_{counts} {
    for (const gamess::AtomRecord& atom : read.atoms) {
        counts.add(Loss::RoundedNumber, rounded_numbers(atom));
    }
}

void DataLosses::add(const DeckLine& line) {
    const std::string_view trimmed = trim(line.text);
    if (line.role == LineRole::Header) {
        if (trimmed.empty()) return;
        counts_.add(Loss::DataHeaderText);
        add_text(trimmed);
    } else if (trimmed.empty()) {
        add_blank(line);
    } else {
        add_text(line.text);
    }
}

void DataLosses::add_blank(const DeckLine& line) {
    const bool kept = take_kept_line(line.text);
    if (line.closes) return;
    if (kept) {
        ++pending_blank_;
    } else {
        counts_.add(Loss::DataBlankLine);
    }
}

void DataLosses::add_text(std::string_view text) {
    if (heading_ < heading_lines) {
        ++heading_;
    } else if (take_kept_line(text)) {
        ++pending_text_;
    } else {
        add_atom(text);
    }
}

void DataLosses::add_atom(std::string_view text) {
    counts_.add(Loss::DataMovedLine, std::exchange(pending_text_, 0));
    counts_.add(Loss::DataBlankLine, std::exchange(pending_blank_, 0));
    const std::vector<std::string_view> words = words_of(text);
    const bool numbered = is_whole_number(words.front());
    if (numbered) counts_.add(Loss::AtomIndex);
    if (words.size() > atom_words + (numbered ? 1 : 0)) counts_.add(Loss::AtomTail);
}

bool DataLosses::take_kept_line(std::string_view text) noexcept {
    if (heading_ < heading_lines || kept_ >= read_.data_lines.size()) return false;
    if (read_.data_lines[kept_] != text) return false;
    ++kept_;
    return true;
}

}  // namespace gms_inp
