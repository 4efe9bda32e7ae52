// Everything here goes by the rules of the format in the plainest way, with copies of everything,
// and shares nothing with the reader but trimming and the cutting of lines.
#include "reader/kept_text.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>

#include "nurl/core/text.hpp"
#include "second_reading/plain_text.hpp"

namespace nurl::test {

namespace {

using core::text::split_lines;
using core::text::to_upper_copy;
using core::text::trim;
using input::gamess::AtomRecord;
using input::gamess::GamessInput;
using input::gamess::NamedSection;
using Lines = std::vector<std::string>;

constexpr std::string_view blanks = " \t\n\v\f\r";
bool is_letter(char c) { return c >= 'A' && c <= 'Z'; }

bool is_digit(char c) { return (c >= '0' && c <= '9') || c == '_'; }

/// A group as it stands in the text: what is behind the name, then each line up to the end.
struct TextGroup {
    std::string name;
    Lines lines;
};

std::string header_name(std::string_view line) {
    const std::string text = to_upper_copy(trim(line));
    if (!text.starts_with('$') || text.starts_with("$END")) return {};
    return text.substr(1, text.find_first_of(std::string{blanks} + '$', 1) - 1);
}

/// Cuts `line` at `$END`. @return whether there was one
bool cut(std::string& line) {
    const std::size_t end = to_upper_copy(line).find("$END");
    if (end != std::string::npos) line.resize(end);
    return end != std::string::npos;
}

std::vector<TextGroup> groups_of(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    std::vector<TextGroup> groups;
    bool is_open = false;
    for (std::string line : split_lines(text)) {
        const std::string name = header_name(line);
        if (!name.empty()) {
            groups.push_back({name, {}});
            line = trim(line).substr(name.size() + 1);
            is_open = true;
        }
        if (!is_open) continue;
        is_open = !cut(line);
        groups.back().lines.push_back(name.empty() ? line : trim(line));
    }
    return groups;
}

/// How many times more a piece of text was written than kept.
using Balance = std::unordered_map<std::string, int>;

/// Counts the names, the runs of digits and the other characters of a text.
void count_pieces(std::string_view text, int step, Balance& balance) {
    const std::string upper = to_upper_copy(text);
    for (std::size_t at = 0; at < upper.size();) {
        std::size_t end = at + 1;
        const bool is_name = is_letter(upper[at]);
        if (is_name || is_digit(upper[at])) {
            while (end < upper.size() &&
                   (is_digit(upper[end]) || (is_name && is_letter(upper[end]))))
                ++end;
        }
        if (blanks.find(upper[at]) == std::string_view::npos)
            balance[upper.substr(at, end - at)] += step;
        at = end;
    }
}

void compare_group(const TextGroup& group, const NamedSection& section, Lines& faults) {
    if (section.name != group.name)
        faults.push_back("$" + group.name + " is kept as $" + section.name);
    Balance balance;
    for (const std::string& line : group.lines) count_pieces(line, 1, balance);
    for (const auto& [key, value] : section.entries) count_pieces(key + " = " + value, -1, balance);
    for (const std::string& line : section.raw_lines) count_pieces(line, -1, balance);
    Lines differences;
    for (const auto& [piece, more] : balance)
        if (more != 0) differences.push_back("$" + group.name + " differs in '" + piece + "'");
    std::ranges::sort(differences);
    faults.insert(faults.end(), differences.begin(), differences.end());
}

std::optional<AtomRecord> atom_of(const std::string& line) {
    Lines words = plain::words_of(line);
    if (words.size() >= 5 && plain::integer_of(words[0])) words.erase(words.begin());
    if (words.size() < 5) return std::nullopt;
    const auto charge = plain::real_of(words[1]);
    const auto x = plain::real_of(words[2]);
    const auto y = plain::real_of(words[3]);
    const auto z = plain::real_of(words[4]);
    if (!charge || !x || !y || !z) return std::nullopt;
    return AtomRecord{words[0], charge, *x, *y, *z};
}

/// What the lines of all `$DATA` groups say.
GamessInput molecule_of(const Lines& lines) {
    GamessInput molecule;
    for (const std::string& line : lines) {
        const std::string text = trim(line);
        if (molecule.title.empty()) {
            molecule.title = text;
        } else if (molecule.point_group.empty()) {
            molecule.point_group = text;
        } else if (const auto atom = atom_of(line)) {
            molecule.atoms.push_back(*atom);
        } else if (!line.empty()) {
            molecule.data_lines.push_back(line);
        }
    }
    return molecule;
}

void compare_molecule(const Lines& lines, const GamessInput& deck, Lines& faults) {
    const GamessInput molecule = molecule_of(lines);
    if (deck.title != molecule.title) faults.push_back("the title is '" + deck.title + "'");
    if (deck.point_group != molecule.point_group)
        faults.push_back("the point group is '" + deck.point_group + "'");
    if (deck.atoms != molecule.atoms) faults.emplace_back("the atoms differ");
    if (deck.data_lines != molecule.data_lines) faults.emplace_back("the lines of $DATA differ");
}

}  // namespace

Lines lost_text(std::string_view text, const GamessInput& deck) {
    Lines faults;
    Lines data_lines;
    bool has_data = false;
    std::size_t next = 0;
    for (const TextGroup& group : groups_of(text)) {
        if (group.name == "DATA") {
            has_data = true;
            data_lines.insert(data_lines.end(), group.lines.begin(), group.lines.end());
        } else if (next == deck.sections.size()) {
            faults.push_back("$" + group.name + " is missing");
        } else {
            compare_group(group, deck.sections[next++], faults);
        }
    }
    if (next != deck.sections.size()) faults.emplace_back("there are groups that were not written");
    if (has_data != deck.has_data) faults.emplace_back("$DATA is missing or was not written");
    compare_molecule(data_lines, deck, faults);
    return faults;
}

}  // namespace nurl::test
